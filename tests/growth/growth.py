#!/usr/bin/env python3
"""Cost against size of each command that reads a file.

usage: growth.py TARN [NAME...]

Each input is made to be costly and has a size and four times that size. A command fails the check if its time or its
memory grows much faster than its input. Times are those of the processor, and only ratios of one run count. Prints a
table.
"""
import os
import struct
import subprocess
import sys
import tempfile

SMALL, TIMES = 1 << 20, 4
# Four times the time is proportional, sixteen times is the square. Below the least time, noise is larger than both.
MOST_TIME_RATIO, LEAST_TIME = 8, 0.2
# The first megabytes fit into memory that the program has anyway and are not counted.
MOST_MEMORY_RATIO, SPARE_MEMORY = 5, 24 << 20

DEBUG, SETTING = 'lumo_tarn_debug_setting_msg', 'lumo_tarn_debug_setting'
APPLICATIONS, APPLICATION_DATA = 'lumo_tarn_cl_appl_msg', 'lumo_tarn_cl_appl_data'
INTF, INTF_DATA = 'lumo_tarn_dp_intf_msg', 'lumo_tarn_dp_intf_data'


def filled(start, piece, end=''):
    """Pieces between a start and an end. A piece is a text or a function of its number."""
    def make(size):
        if isinstance(piece, str):
            return (start + piece * (size // len(piece)) + end).encode()
        return (start + ''.join(piece(i) for i in range(size // len(piece(size // 20)))) + end).encode()
    return make


def json_message(name, start, piece, end=''):
    return filled('{"message": "%s", "payload": {%s' % (name, start), piece, end + '}}')


def xml_message(name, payload, piece, declaration=''):
    return filled(f'{declaration}<{name}><{payload}>', piece, f'</{payload}></{name}>')


def generated(tarn, *words):
    return subprocess.run([tarn, 'generate', *words, '--form', 'frames'], check=True, capture_output=True).stdout


def frames(tarn, *words):
    """Copies of a generated frame."""
    def make(size):
        frame = generated(tarn, *words)
        return frame * (size // len(frame))
    return make


def one_frame(tarn, *words):
    """A frame with a long list."""
    def make(size):
        per_element = len(generated(tarn, *words, '--elements', '1000')) // 1000
        return generated(tarn, *words, '--elements', str(size // per_element))
    return make


def library(size):
    """An ELF file. Half of it are the headers of sections, whose names have no end; the other half are names."""
    count = size // 2 // 64
    names = 64 + count * 64
    head = b'\x7fELF\x02\x01\x01'.ljust(16, b'\0') + struct.pack('<HHIQQQIHHHHHH', 3, 62, 1, 0, 0, 64, 0, 64, 0, 0,
                                                                   64, 0, 1)
    first = struct.pack('<IIQQQQIIQQ', 0, 0, 0, 0, 0, count, 0, 0, 0, 0)
    table = struct.pack('<IIQQQQIIQQ', 0, 3, 0, 0, names, size // 2, 0, 0, 0, 0)
    return head + first + table + table * (count - 2) + b'n' * (size // 2)


def cases(tarn):
    encode, lenient = ['encode', '-o', '/dev/null'], ['encode', '--lenient', '-o', '/dev/null']
    debug_json = '{"message": "%s", "payload": {"info_enabled": 1}}\n' % DEBUG
    debug_xml = f'<{DEBUG}><{SETTING}><info_enabled>1</info_enabled></{SETTING}></{DEBUG}>\n'
    declaration = "<?xml version='1.0'%s?>" % (' ' * 160)
    small, list_frame = ('debug-setting',), ('cl-appl',)
    yield 'JSON: messages, one a line', encode, filled('', debug_json)
    yield 'JSON: messages in a list', encode, filled('[', debug_json + ',', debug_json + ']')
    yield 'JSON: lines', encode, filled('', '\n', debug_json)
    yield 'JSON: numbers', encode, filled('[', '1,', '1]')
    yield 'JSON: lists', encode, filled('[', '[],', '[]]')
    yield 'JSON: objects', encode, filled('[', '{},', '{}]')
    yield 'JSON: keys', lenient, json_message(DEBUG, '', lambda i: '"key%d":1,' % i, '"k":1')
    yield 'JSON: unknown keys', encode, json_message(DEBUG, '', lambda i: '"key%d":1,' % i, '"k":1')
    yield 'JSON: a long key', encode, json_message(DEBUG, '"', 'k', '":1')
    yield 'JSON: a long string', encode, json_message(INTF, '"intf_name":"', 's', '"')
    yield 'JSON: a long number', encode, json_message(DEBUG, '"info_enabled":', '1')
    yield 'JSON: elements', encode, json_message(APPLICATIONS, '"kesh_appl":[', '{},', '{}]')
    yield 'JSON: nesting', encode, filled('', '[')
    yield 'XML: messages', encode, filled('', debug_xml)
    yield 'XML: messages without content', lenient, filled('', f'<{DEBUG}/>')
    yield 'XML: a declaration before messages', encode, filled(declaration, debug_xml)
    yield 'XML: a long declaration', encode, lambda size: (
        "<?xml version='1.0'%s?>" % (' ' * (size // 2)) + debug_xml * (size // 2 // len(debug_xml))).encode()
    yield 'XML: elements without content', encode, xml_message(APPLICATIONS, APPLICATION_DATA, '<kesh_appl/>')
    yield 'XML: the same, lenient', lenient, xml_message(APPLICATIONS, APPLICATION_DATA, '<kesh_appl/>')
    yield 'XML: unknown elements', encode, xml_message(DEBUG, SETTING, '<unknown/>')
    yield 'XML: the same, lenient', lenient, xml_message(DEBUG, SETTING, '<unknown/>')
    yield 'XML: elements of different names', lenient, xml_message(DEBUG, SETTING, lambda i: '<e%d/>' % i)
    yield 'XML: payloads', lenient, filled(f'<{APPLICATIONS}>', f'<{APPLICATION_DATA}><kesh_appl/></{APPLICATION_DATA}>',
                                           f'</{APPLICATIONS}>')
    yield 'XML: payloads beside elements', lenient, lambda size: (
        f'<{APPLICATIONS}><{APPLICATION_DATA}>' + '<kesh_appl/>' * (size // 28) + f'</{APPLICATION_DATA}>' +
        f'<{APPLICATION_DATA}/>' * (size // 2 // (len(APPLICATION_DATA) + 3)) + f'</{APPLICATIONS}>').encode()
    yield 'XML: nested payloads', lenient, filled(
        f'<{APPLICATIONS}>', f'<{APPLICATION_DATA}>' * 200 + f'</{APPLICATION_DATA}>' * 200, f'</{APPLICATIONS}>')
    yield 'XML: attributes', lenient, filled(f'<{DEBUG}', lambda i: ' a%d="b"' % i, f'></{DEBUG}>')
    yield 'XML: namespaces', lenient, filled(f'<{DEBUG}', lambda i: ' xmlns:a%d="b"' % i, f'></{DEBUG}>')
    yield 'XML: text in pieces', encode, filled(f'<{INTF}><{INTF_DATA}><intf_name>', 'x<!---->',
                                                f'</intf_name></{INTF_DATA}></{INTF}>')
    yield 'XML: character references', encode, filled(f'<{INTF}><{INTF_DATA}><intf_name>', '&#120;',
                                                      f'</intf_name></{INTF_DATA}></{INTF}>')
    yield 'XML: loose text', encode, xml_message(DEBUG, SETTING, '<info_enabled/>text')
    yield 'XML: comments', encode, filled('', '<!-- -->', debug_xml)
    yield 'XML: lines', encode, filled('', '\n', debug_xml)
    yield 'XML: nesting', encode, filled(f'<{DEBUG}>', '<a>')
    for form in ('--text', '--xml', '--json'):
        yield f'decode {form}: messages', ['decode', form], frames(tarn, *small)
        yield f'decode {form}: a list', ['decode', form], one_frame(tarn, *list_frame)
    yield 'decode --bundles: bundles', ['decode', '--bundles'], frames(tarn, *small, '--bundle')
    yield 'encode: messages', encode, frames(tarn, *small)
    yield 'dissect: messages', ['dissect'], frames(tarn, *small)
    yield 'dissect: a list', ['dissect'], one_frame(tarn, *list_frame)
    yield 'dissect --json: a list', ['dissect', '--json'], one_frame(tarn, *list_frame)
    yield 'dissect --source: a list', ['dissect', '--source'], one_frame(tarn, *list_frame)
    yield 'assemble: elements', ['assemble'], filled('frame cl-cfg { payload { global_info { lumo_info_list { lumo_info [',
                                                     '{ ... }\n', '] } } } }')
    yield 'view: messages', ['view', '-o', '/dev/null'], frames(tarn, *small)
    yield 'view: a list', ['view', '-o', '/dev/null'], one_frame(tarn, *list_frame)
    yield 'diff: a list', ['diff', '/dev/stdin'], one_frame(tarn, *list_frame)
    yield 'record: messages', ['record', '-o', '/dev/null', '--from'], frames(tarn, *small)
    yield 'manifest: sections', ['manifest'], library


def run(tarn, words, path):
    """Processor time in seconds and memory in bytes."""
    words = [path if word == '/dev/stdin' else word for word in words]
    with open(os.devnull, 'wb') as null:
        child = subprocess.Popen([tarn, *words, path], stdout=null, stderr=null)
        _, status, used = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode not in (0, 1, 2, 3):
        sys.exit(f'{words} ended with {child.returncode}')
    return used.ru_utime + used.ru_stime, used.ru_maxrss * 1024


def main():
    tarn, wanted = sys.argv[1], sys.argv[2:]
    if wanted[:1] == ['--make']:
        make = next(make for name, _, make in cases(tarn) if name == wanted[1])
        sys.stdout.buffer.write(make(int(wanted[2])))
        return 0
    failed = []
    idle_time, idle_memory = run(tarn, ['decode'], os.devnull)
    print(f'{"input of 1 MiB and 4 MiB":42}{"seconds":>16}{"ratio":>7}{"MiB":>14}{"bytes a byte":>14}')
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, 'input')
        for name, words, _ in cases(tarn):
            if wanted and not any(part in name for part in wanted):
                continue
            times, memories, sizes = [], [], []
            for size in (SMALL, SMALL * TIMES):
                # In a process of its own, since its memory would count for the next one that is started here.
                with open(path, 'wb') as file:
                    subprocess.run([sys.executable, __file__, tarn, '--make', name, str(size)], stdout=file, check=True)
                time, memory = run(tarn, words, path)
                times.append(max(time - idle_time, 0.001))
                memories.append(max(memory - idle_memory, 1))
                sizes.append(os.path.getsize(path))
            ratio = times[1] / times[0]
            print(f'{name:42}{times[0]:8.2f}{times[1]:8.2f}{ratio:7.1f}{memories[0] >> 20:7}{memories[1] >> 20:7}'
                  f'{memories[1] / sizes[1]:14.1f}', flush=True)
            if times[1] > LEAST_TIME and ratio > MOST_TIME_RATIO:
                failed.append(f'{name}: {ratio:.1f} times the time for {TIMES} times the input')
            if memories[1] > MOST_MEMORY_RATIO * memories[0] + SPARE_MEMORY:
                failed.append(f'{name}: {memories[1] / memories[0]:.1f} times the memory for {TIMES} times the input')
    for line in failed:
        print(line, file=sys.stderr)
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
