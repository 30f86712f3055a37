"""Add a kind: permille, an integer of two bytes that is at most 1000; and a member of it, peak_load."""

NEW = ["permille", "peak_load"]


def add_kind(tree):
    tree.insert("schema/kind_facts.h", "permille, ", after="enum class Kind : std::uint8_t { u8, u16, u32, u64, ")
    tree.insert("schema/kind_facts.h", """\
    {.kind = Kind::permille,
     .category = Category::integer,
     .name = "permille",
     .value_type = "uint16_t",
     .primitive = "u_int16",
     .storage = 2,
     .alignment = 2,
     .wire = 2,
     .greatest = 1000,
     .in_frame = "a number, at most 1000"},
""", before="    {.kind = Kind::boolean,\n")
    tree.insert("schema/model.h", """\
consteval Member permille(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::permille}; }
""", before="consteval Member boolean(")
    tree.insert("kinds/integer.h", "TARN_INTEGER_KIND(permille, std::uint16_t, u_int16)\n",
                before="#undef TARN_INTEGER_KIND")


def add_member(tree):
    tree.insert("schema/records/debug_setting.h", '    permille("peak_load", "highest load so far"),\n',
                after='    u32("error_enabled", "switch of error-level debug output"),\n')
    table = "tests/support/reference/record_tables.cpp"
    tree.replace(table, "c5b10f0f65bc6c4b33577adf0ed8d6b3 28 32 12 40 4 44",
                 "c5b10f0f65bc6c4b33577adf0ed8d6b3 30 32 10 40 5 45")
    tree.insert(table, "  peak_load integer u_int16\n", before="record lumo_tarn_dp_debug_setting_data")


STEPS = [(add_kind, 4), (add_member, 1)]

C = r"""
#include <assert.h>
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>

int main(void) {
    mirk_handle *h = mirk_platform_handle_open(NULL);
    uint32_t err = 0;
    uint8_t frame[129];
    lumo_tarn_debug_setting *setting = lumo_tarn_debug_setting_create(h, 1);
    uint16_t load = 700;
    lumo_tarn_debug_setting_peak_load_set(h, 1, setting, &load, &err);
    assert(lumo_tarn_debug_setting_marshal(h, 1, frame, setting, 128, &err) == 6 + 4 * 4 + 2);
    assert(frame[6 + 4 * 4] == 700 / 256 && frame[6 + 4 * 4 + 1] == 700 % 256);
    lumo_tarn_debug_setting *other = lumo_tarn_debug_setting_create(h, 1);
    lumo_tarn_debug_setting_peak_load_set_value(h, 1, other, 701, &err);
    assert(lumo_tarn_debug_setting_compare(setting, other) < 0 && err == 0);
    lumo_tarn_debug_setting_destroy(h, 1, other);
    lumo_tarn_debug_setting_destroy(h, 1, setting);
    assert(mirk_platform_handle_close(h) == 0);
    return 0;
}
"""

CPP = r"""
#include <cassert>
#include <lumo_ui_tarn.hpp>
#include <mirk_platform.h>

int main() {
    mirk_handle *h = mirk_platform_handle_open(nullptr);
    {
        lumo_ui_tarn::context c(h);
        lumo_ui_tarn::debug_setting setting(c);
        const std::uint16_t load = setting.set_peak_load(700).peak_load();
        assert(load == 700);
    }
    assert(mirk_platform_handle_close(h) == 0);
}
"""

PYTHON = r"""
import lumo_tarn
setting = lumo_tarn.DebugSetting(peak_load=700)
assert lumo_tarn.DebugSetting.from_xml(setting.to_xml()).peak_load == 700
assert setting.to_frame()[-2:] == (700).to_bytes(2, "big")
assert setting.to_dict()["peak_load"] == 700
try:
    setting.peak_load = 1001
except OverflowError as error:
    assert str(error) == "peak_load is at most 1000"
assert setting.peak_load == 700

# The tool refuses what is greater than the kind's greatest value.
import os, pathlib, re, subprocess
document = pathlib.Path("build/peak_load.xml")
for load, code in (1000, 0), (1001, 2):
    xml = subprocess.check_output([os.environ["TARN"], "generate", "cl-debug", "--form", "xml"], text=True)
    document.write_text(re.sub(r"<peak_load>\d+", f"<peak_load>{load}", xml))
    made = subprocess.run([os.environ["TARN"], "encode", document, "-o", "build/frames"], stderr=subprocess.DEVNULL)
    assert made.returncode == code, load
"""

FILES = [
    ("include/lumo_ui_tarn/records/lumo_tarn_debug_setting.h", "lumo_tarn_debug_setting_peak_load_set_value("),
    ("include/lumo_ui_tarn.hpp", "std::uint16_t peak_load() const"),
    ("tests/golden/layout.txt", "peak_load"),
    ("build/dev/bindings/python/lumo_tarn/_schema.py", '"peak_load", "permille", "", "highest load so far: a number from 0 to 1000'),
    ("build/dev/tools/generate/dissector/tarn.lua", "permille = 2, "),
    ("build/dev/docs/tarn_frame.5", "permille Ta 2 Ta \"a number, at most 1000\"\n"),
    ("build/dev/docs/tarn_frame.5", ".It peak_load\npermille, 2 bytes: highest load so far\n"),
]

TOOL = [
    ("schema lumo_tarn_debug_setting", "peak_load"),
    ("schema --json", '"name": "peak_load"'),
    ("schema --html", '"name":"peak_load"'),
    ("complete schema lumo_tarn_debug_setting.pe", "lumo_tarn_debug_setting.peak_load\thighest load so far\n"),
    ("generate cl-debug --form json", '"peak_load":'),
]
