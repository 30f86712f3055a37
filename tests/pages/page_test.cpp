// The HTML pages of the tool in a headless browser: pointing, typing and clicking, and their effect.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "process.h"
#include "samples.h"

namespace pages {

namespace {

using nlohmann::json;
using tool_test::Directory;
using tool_test::Outcome;

void replace(std::string &text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
}

Outcome chromium(const std::string &file, const std::vector<std::string> &more) {
    const Directory profile;
    std::vector<std::string> all{"--headless",
                                 "--no-sandbox",
                                 "--disable-gpu",
                                 "--disable-quic",
                                 "--disable-dev-shm-usage",
                                 "--no-first-run",
                                 "--disable-background-networking",
                                 "--disable-component-update",
                                 "--disable-sync",
                                 "--window-size=1280,800",
                                 "--user-data-dir=" + profile.path("data")};
    all.insert(all.end(), more.begin(), more.end());
    all.push_back("file://" + file);
    return tool_test::run(TARN_CHROMIUM, all);
}

// Actions of a user.
const char *const helpers = R"(
const rowAt = path => [...document.querySelectorAll('.row')].find(r => r.dataset.path === path);
const pointAt = target => target.dispatchEvent(new MouseEvent('mouseover', {bubbles: true}));
const markedBytes = s => [...new Set([...document.querySelectorAll('.dump')[s].querySelectorAll('i.marked')]
  .map(i => Number(i.dataset.at)))];
const byteAt = (s, at) => document.querySelectorAll('.dump')[s].querySelector('i[data-at="' + at + '"]');
const markedRows = () => [...document.querySelectorAll('.row.marked')].map(r => r.dataset.path);
const selectedRows = () => [...document.querySelectorAll('.row.selected')].map(r => r.dataset.path);
const type = words => {
  document.getElementById('search').value = words;
  const later = setTimeout, delayed = [];
  globalThis.setTimeout = (...all) => delayed.push(all);
  document.getElementById('search').dispatchEvent(new Event('input'));
  globalThis.setTimeout = later;
  for (const [work, , ...all] of delayed) work(...all);
};
const press = key =>
  document.getElementById('search').dispatchEvent(new KeyboardEvent('keydown', {key, bubbles: true}));
// A key on what has the focus.
const strike = key => document.activeElement.dispatchEvent(new KeyboardEvent('keydown', {key, bubbles: true}));
const found = () => document.getElementById('found').textContent;
)";

// Runs statements after the script of the page. They fill in `seen`, which also gets the errors of both. The policy of
// the page is changed to admit them besides its own script. The fragment ends the address of the page.
json seen_in(std::string page, const std::string &statements, const std::string &fragment = {}) {
    const Directory directory;
    const std::string script = "<script nonce=\"test\">";
    replace(page, "script-src ", "script-src 'nonce-test' ");
    replace(page, "<body>",
            "<body>" + script + "const errors = []; onerror = text => { errors.push(text); };</script>");
    replace(
        page, "</body>",
        script + std::string(helpers) + "const seen = {errors}; try {" + statements +
            "} catch (error) { errors.push(String(error)); }\nconst note = document.createElement('pre'); "
            "note.id = 'seen'; note.textContent = JSON.stringify(seen); document.body.append(note);</script></body>");
    const Outcome outcome = chromium(directory.write("page.html", page) + fragment, {"--dump-dom"});
    const std::string open = "<pre id=\"seen\">";
    const std::size_t from = outcome.out.find(open);
    EXPECT_NE(from, std::string::npos) << outcome.err;
    if (from == std::string::npos) return {};
    std::string text = outcome.out.substr(from + open.size(), outcome.out.find("</pre>", from) - from - open.size());
    replace(text, "&lt;", "<");
    replace(text, "&gt;", ">");
    replace(text, "&amp;", "&");
    json seen = json::parse(text);
    EXPECT_EQ(seen.at("errors"), json::array());
    return seen;
}

std::string page_of(const std::vector<std::string> &files) {
    std::vector<std::string> all{"view"};
    all.insert(all.end(), files.begin(), files.end());
    const Outcome outcome = tool_test::tarn(all);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    return outcome.out;
}

std::string debug_answer(unsigned info, unsigned warn) {
    const reference::BundleTable &bundle = reference::bundle_table("lumo_tarn_cl_debug_rsp");
    reference::Record payload("lumo_tarn_debug_setting");
    payload["info_enabled"].number = info;
    payload["warn_enabled"].number = warn;
    return tool_test::answer(bundle, payload, false);
}

// After a start of 43 bytes: 43 bytes of the frame, then variant, flag and jump, then four numbers of four bytes.
constexpr unsigned members_at = 43 + 43 + 6;

json bytes(unsigned from, unsigned count) {
    json all = json::array();
    for (unsigned i = 0; i < count; ++i) all.push_back(from + i);
    return all;
}

TEST(View, HoveringHighlightsBytesAndMembers) {
    const Directory directory;
    const json seen = seen_in(page_of({directory.write("a.bin", debug_answer(1, 5))}), R"(
        pointAt(rowAt('payload.warn_enabled'));
        seen.warn = markedBytes(0);
        pointAt(rowAt('payload'));
        seen.payload = markedBytes(0);
        pointAt(byteAt(0, 95));
        seen.row = markedRows();
        pointAt(byteAt(0, 86));
        seen.framing = markedRows();
        document.getElementById('framing').click();
        pointAt(byteAt(0, 88));
        seen.jump = markedRows();
        byteAt(0, 100).click();
        seen.selected = selectedRows();
        seen.address = location.hash;
        seen.detail = document.getElementById('detail').textContent;)");
    EXPECT_EQ(seen.at("warn"), bytes(members_at + 8, 4));
    EXPECT_EQ(seen.at("payload"), bytes(86, 22));
    EXPECT_EQ(seen.at("row"), json::array({"payload.info_enabled"}));
    EXPECT_EQ(seen.at("framing"), json::array({"payload"}));
    EXPECT_EQ(seen.at("jump"), json::array({"payload.@jump"}));
    EXPECT_EQ(seen.at("selected"), json::array({"payload.warn_enabled"}));
    EXPECT_EQ(seen.at("address"), "#1:payload.warn_enabled");
    EXPECT_NE(seen.at("detail").get<std::string>().find("switch of warning-level debug output"), std::string::npos);
}

TEST(View, SearchFindsNamesAndValuesInFoldedMembers) {
    const Directory directory;
    const reference::MessageTable &message = reference::message_table("lumo_tarn_dp_appl_msg");
    reference::GeneratorOptions options;
    options.min_elements = 2;
    reference::Record payload = reference::Generator(3, options).make(message.payload);
    payload["lumo_data"].items[1]["sig_list"].items[1]["appl_name"].text = "</script><b id=\"broken\">needle &amp;";
    const std::string name =
        directory.write("<img src=x onerror=alert(1)>.bin", tool_test::frame(message, payload, true));
    const json seen = seen_in(page_of({name}), R"(
        type('NEEDLE &AMP');
        seen.value = [found(), selectedRows()];
        type('sig_list');
        press('Enter');
        seen.name = [found(), selectedRows()];
        type('not in there');
        seen.absent = [found(), selectedRows(), markedBytes(0), location.hash];
        type('');
        seen.nothing = found();
        seen.injected = document.querySelectorAll('img, #broken').length;
        seen.title = document.title;
        seen.owned = [...sides[0].data.keys()].every(at => ownerOf(0, at) !== null);)");
    EXPECT_EQ(seen.at("value"), (json{"1 of 1", {"payload.lumo_data[1].sig_list[1].appl_name"}}));
    EXPECT_EQ(seen.at("name"), (json{"2 of 2", {"payload.lumo_data[1].sig_list"}}));
    EXPECT_EQ(seen.at("absent"), (json{"nothing found", json::array(), json::array(), ""}));
    EXPECT_EQ(seen.at("nothing"), "");
    EXPECT_EQ(seen.at("injected"), 0);
    EXPECT_EQ(seen.at("title"), name + " - tarn");
    EXPECT_EQ(seen.at("owned"), true);
}

// Scripts and handlers like those that text from outside would bring into a page if it were not escaped.
TEST(Pages, RunTheirOwnScriptOnly) {
    const Directory directory;
    for (std::string page :
         {page_of({directory.write("a.bin", debug_answer(1, 5))}), tool_test::tarn({"schema", "--html"}).out}) {
        replace(page, "</body>",
                "<script>document.body.id = 'changed';</script>"
                "<img src=\"data:,\" onerror=\"document.body.id = 'changed'\"></body>");
        const Outcome shown = chromium(directory.write("page.html", page), {"--dump-dom"});
        EXPECT_EQ(shown.out.find("<body id=\"changed\">"), std::string::npos);
        EXPECT_NE(shown.out.find("<p id=\"summary\">"), std::string::npos) << shown.err;
        EXPECT_EQ(shown.out.find("<p id=\"summary\"></p>"), std::string::npos) << "the page's own script fills it in";
    }
}

TEST(View, ShowsADifference) {
    const Directory directory;
    const std::string a = directory.write("a.bin", debug_answer(1, 5)),
                      b = directory.write("b.bin", debug_answer(9, 7));
    const json seen = seen_in(page_of({a, b}), R"(
        seen.summary = document.getElementById('summary').textContent;
        seen.changed = [...document.querySelectorAll('.row.changed')].map(r => r.dataset.path);
        seen.values = [...rowAt('payload.warn_enabled').querySelectorAll('.value')].map(v => v.textContent);
        pointAt(rowAt('payload.warn_enabled'));
        seen.bytes = [markedBytes(0), markedBytes(1)];
        document.getElementById('changes').click();
        seen.left = [...document.querySelectorAll('.row')].map(r => r.dataset.path);
        seen.first = [found(), selectedRows(), location.hash];
        document.getElementById('next').click();
        seen.next = [found(), selectedRows()];
        strike('n');
        seen.again = [found(), selectedRows()];
        strike('p');
        seen.back = [found(), selectedRows()];
        document.getElementById('previous').click();
        seen.previous = [found(), selectedRows()];)");
    EXPECT_EQ(seen.at("summary"), "3 frames, 2 differences");
    EXPECT_EQ(seen.at("changed"), json::array({"payload.info_enabled", "payload.warn_enabled"}));
    EXPECT_EQ(seen.at("values"), json::array({"5", "7"}));
    EXPECT_EQ(seen.at("bytes"), json::array({bytes(members_at + 8, 4), bytes(members_at + 8, 4)}));
    EXPECT_EQ(seen.at("left"), json::array({"", "payload", "payload.info_enabled", "payload.warn_enabled"}));
    const json first{"1 of 2 changes", {"payload.info_enabled"}}, second{"2 of 2 changes", {"payload.warn_enabled"}};
    EXPECT_EQ(seen.at("first"), (json{first[0], first[1], "#1:payload.info_enabled"}));
    EXPECT_EQ(seen.at("next"), second);
    EXPECT_EQ(seen.at("again"), first);
    EXPECT_EQ(seen.at("back"), second);
    EXPECT_EQ(seen.at("previous"), first);
}

// Frames whose parts have other sizes, other states and unusual values. A walk over all nodes counts the same.
TEST(View, CountsDifferencesAsTheyAreShown) {
    const Directory directory;
    std::string a, b;
    for (const reference::MessageTable &message : reference::messages()) {
        for (const unsigned seed : {1U, 2U, 3U, 4U}) {
            const reference::Record payload = tool_test::strange_payload(message, seed);
            const reference::Record other = tool_test::strange_payload(message, seed == 2 ? 2 : seed + 10);
            a += tool_test::frame(message, payload, seed % 2 == 1);
            b += tool_test::frame(message, other, seed != 4);
        }
    }
    const json seen = seen_in(page_of({directory.write("a.bin", a), directory.write("b.bin", b)}), R"(
        const countBelow = node => {
            if (isInAddress(node)) return 0;
            if (isOneSided(node)) return Number(!node.structural);
            let sum = Number(differs(node));
            for (let i = 0; i < list(node).length; ++i) sum += countBelow(childAt(node, i));
            return sum;
        };
        const wrong = [], walk = node => {
            if (inside(node) !== countBelow(node)) wrong.push([node.index, node.path, inside(node), countBelow(node)]);
            for (let i = 0; i < list(node).length; ++i) walk(childAt(node, i));
        };
        roots.forEach(walk);
        seen.wrong = wrong;
        seen.all = roots.reduce((sum, root) => sum + countBelow(root), 0);
        seen.summary = document.getElementById('summary').textContent;)");
    EXPECT_EQ(seen.at("wrong"), json::array());
    EXPECT_GT(seen.at("all"), 1000);
    EXPECT_EQ(seen.at("summary"), "40 frames, " + seen.at("all").dump() + " differences");
}

// Browsers draw nothing beyond 17 or 33 million pixels, depending on the browser. The bytes of the page are replaced by
// more, of which the frames are the first.
TEST(View, ScrollsToTheLastByteOfALargeFile) {
    const Directory directory;
    std::string page = page_of({directory.write("a.bin", debug_answer(1, 5))});
    replace(page, "side.data = bytesOfBase64(side.bytes);",
            "side.data = new Uint8Array(100000000); side.data.set(bytesOfBase64(side.bytes));");
    replace(page, "<script>'use strict';", "<script nonce=\"test\">'use strict';");
    const json seen = seen_in(page, R"(
        const side = sides[0], dump = side.dump, at = () => [...dump.querySelectorAll('i')].map(i => +i.dataset.at);
        const isInSight = i => { const [a, b] = [i, dump].map(e => e.getBoundingClientRect());
                                 return a.top >= b.top && a.bottom <= b.bottom; };
        seen.height = dump.scrollHeight;
        dump.scrollTop = dump.scrollHeight;
        drawLines(side, 0);
        seen.last = [Math.max(...at()), isInSight(byteAt(0, 99999999))];
        showByte(0, 50000000);
        seen.middle = isInSight(byteAt(0, 50000000));
        const top = dump.scrollTop;
        showByte(0, 50000016);
        seen.stays = dump.scrollTop === top;
        dump.scrollTop = 0;
        drawLines(side, 0);
        seen.first = [Math.min(...at()), isInSight(byteAt(0, 0))];)");
    EXPECT_LT(seen.at("height"), 17000000);
    EXPECT_EQ(seen.at("last"), (json{99999999, true}));
    EXPECT_EQ(seen.at("middle"), true);
    EXPECT_EQ(seen.at("stays"), true);
    EXPECT_EQ(seen.at("first"), (json{0, true}));
}

// All elements of the long lists differ.
TEST(View, CreatesOnlyTheVisibleRowsOfADifference) {
    const Directory directory;
    std::vector<std::string> files;
    for (const char *const seed : {"1", "2"}) {
        files.push_back(directory.path(seed));
        ASSERT_EQ(tool_test::tarn({"generate", "dp-appl-cfg", "--size", "256K", "--form", "frames", "--seed", seed,
                                   "-o", files.back()})
                      .exit,
                  0);
    }
    const json seen = seen_in(page_of(files), R"(
        seen.rows = document.querySelectorAll('.row').length;
        const node = nodeOf('0:payload.lumo_data[0].sig_list');
        reveal(node);
        unfold(node);
        seen.open = document.querySelectorAll('.row').length - seen.rows;
        seen.elements = sizeOf(node);
        seen.changed = inside(node) > seen.elements;
        document.getElementById('changes').click();
        seen.only = [document.querySelectorAll('.row').length, shownBelow(node).length === seen.elements];
        document.getElementById('next').click();
        seen.next = [found(), selectedRows().length];
        seen.nodes = count;)");
    EXPECT_LT(seen.at("rows"), 200);
    EXPECT_EQ(seen.at("open"), 200);
    EXPECT_GT(seen.at("elements"), 1000);
    EXPECT_EQ(seen.at("changed"), true);
    EXPECT_LT(seen.at("only")[0], 500);
    EXPECT_EQ(seen.at("only")[1], true);
    EXPECT_EQ(seen.at("next"), (json{"2 of 5000 or more changes", 1}));
    EXPECT_LT(seen.at("nodes"), 5000 + 200 * 16 + 1000);
}

std::string large_answer(const Directory &directory, const std::string &seed = "1") {
    std::string path = directory.path("answer" + seed);
    const Outcome made =
        tool_test::tarn({"generate", "dp-appl-cfg", "--size", "256K", "--form", "frames", "--seed", seed, "-o", path});
    EXPECT_EQ(made.exit, 0) << made.err;
    return path;
}

const char *const tree_helpers = R"(
    const list = 'payload.lumo_data[0].sig_list', all = sizeOf(nodeOf('0:' + list));
    const stops = () => [...document.querySelectorAll('#tree, .row')].filter(e => e.tabIndex === 0)
      .map(e => e.dataset.path);
    const active = () => document.activeElement.dataset.path;
    const pressed = keys => keys.map(key => { strike(key); return active(); });
    const enter = path => { select(nodeOf('0:' + path)); enterTree(); };
    const facts = path => ['level', 'posinset', 'setsize', 'expanded', 'selected', 'label']
      .map(name => rowAt(path).getAttribute('aria-' + name));
)";

TEST(View, TellsAScreenReaderLevelPositionAndState) {
    const Directory directory;
    const json seen = seen_in(page_of({large_answer(directory)}), tree_helpers + std::string(R"(
        seen.start = [stops(), tree.tabIndex];
        seen.list = facts('payload.lumo_data');
        enter(list);
        unfold(selected);
        select(nodeOf('0:' + list + '[1]'));
        seen.element = [facts(list + '[1]'), facts(list + '[0]')];
        select(nodeOf('0:' + list + '[' + (all - 1) + '].pal_id'));
        seen.last = [facts(selected.parent.path), selected.path].flat();
        seen.all = String(all);
        seen.stops = [stops(), tree.tabIndex];
        seen.value = facts(selected.path);)"));
    EXPECT_EQ(seen.at("start"), (json{{""}, -1}));
    const json &list = seen.at("list"), &element = seen.at("element"), &last = seen.at("last"), &all = seen.at("all");
    EXPECT_EQ(list[0], "3");
    EXPECT_EQ(list[1], list[2]) << "the last member";
    EXPECT_EQ(list[3], "true");
    EXPECT_EQ(list[4], "false");
    EXPECT_EQ(list[5].get<std::string>().find("lumo_data, lumo_tarn_dp_appl_cfg[], "), 0U) << list[5];
    EXPECT_EQ(element[0], (json{"6", "2", all, "false", "true", element[0][5]}));
    EXPECT_EQ(element[1], (json{"6", "1", all, "false", "false", element[1][5]}));
    EXPECT_EQ(element[0][5].get<std::string>().find("[1], signature 1001, lumo_tarn_dp_appl_sig, "), 0U) << element[0];
    EXPECT_EQ(last, (json{"6", all, all, "true", "false", last[5], last[6]}));
    EXPECT_EQ(seen.at("stops"), (json{{last[6]}, -1}));
    EXPECT_EQ(seen.at("value")[3], nullptr) << "without members";
}

TEST(View, FollowsTheKeysOfATree) {
    const Directory directory;
    const json seen = seen_in(page_of({large_answer(directory)}), tree_helpers + std::string(R"(
        seen.list = list;
        seen.end = list + '[' + (all - 1) + ']';
        enter(list);
        seen.open = pressed(['ArrowRight', 'ArrowRight', 'ArrowDown', 'ArrowRight', 'ArrowRight', 'ArrowRight']);
        seen.close = pressed(['ArrowLeft', 'ArrowLeft', 'ArrowLeft', 'ArrowLeft']);
        seen.selected = selectedRows();
        enter(seen.end);
        seen.over = pressed(['ArrowUp', 'ArrowDown', 'ArrowDown', 'ArrowUp']);
        seen.ends = pressed(['Home', 'ArrowUp', 'Enter', 'ArrowDown', 'Enter', 'ArrowDown', 'End', 'ArrowDown']);
        enter(list + '[50]');
        const rowsInPage = Math.floor(tree.clientHeight / 22) - 1;
        seen.pages = pressed(['PageDown', 'PageUp', 'PageUp']);
        seen.expected = [50 + rowsInPage, 50, 50 - rowsInPage].map(i => list + '[' + i + ']');
        // A row that is out of sight does not exist; the keys still work.
        enter(list + '[5]');
        const box = boxOf(selected);
        erase(box);
        seen.lost = [document.activeElement === document.body, tree.tabIndex];
        strike('ArrowDown');
        seen.again = [active(), tree.tabIndex];
        erase(box);
        tree.focus();
        seen.entered = active();
        strike('/');
        seen.search = document.activeElement.id;
        press('Escape');
        seen.escaped = active();)"));
    const std::string list = seen.at("list");
    const json end = seen.at("end");
    const std::string element = list + "[1]", inner = element + ".exmem_info";
    EXPECT_EQ(seen.at("open"), (json{list, list + "[0]", element, element, inner, inner}));
    EXPECT_EQ(seen.at("close"), (json{inner, element, element, list}));
    EXPECT_EQ(seen.at("selected"), json{list});
    EXPECT_EQ(seen.at("over")[1], end);
    EXPECT_EQ(seen.at("over")[2], "payload.lumo_data[1]");
    EXPECT_EQ(seen.at("over")[3], end);
    const std::string last = "payload.lumo_data[1].sig_list";
    EXPECT_EQ(seen.at("ends"), (json{"", "", "", "", "", "header", last, last}));
    EXPECT_EQ(seen.at("pages"), seen.at("expected"));
    EXPECT_EQ(seen.at("lost"), (json{true, 0}));
    EXPECT_EQ(seen.at("again"), (json{list + "[6]", -1}));
    EXPECT_EQ(seen.at("entered"), list + "[6]");
    EXPECT_EQ(seen.at("search"), "search");
    EXPECT_EQ(seen.at("escaped"), list + "[6]");
}

TEST(View, ShowsABrokenFrameUpToTheError) {
    const Directory directory;
    std::string broken = debug_answer(1, 5);
    broken.resize(members_at + 6);
    const Outcome outcome = tool_test::tarn({"view", directory.write("a.bin", broken)});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("broken at offset 96, payload.trace_enabled"), std::string::npos) << outcome.err;
    const json seen = seen_in(outcome.out, R"(
        seen.note = document.querySelector('.error').textContent;
        seen.marked = selectedRows();
        seen.mark = [rowAt('payload.trace_enabled').getAttribute('aria-label'), byteAt(0, 96).className];
        seen.frame = document.querySelectorAll('.row.frame')[1].getAttribute('aria-label');
        seen.rest = [...document.querySelectorAll('.dump i.rest')].length / 2;
        pointAt(rowAt('payload.info_enabled'));
        seen.bytes = markedBytes(0);)");
    EXPECT_EQ(seen.at("note"), "broken at offset 96, payload.trace_enabled: needs 4 bytes, but 2 are left");
    EXPECT_EQ(seen.at("marked"), json{"payload.trace_enabled"});
    EXPECT_EQ(seen.at("mark"),
              (json{"trace_enabled, breaks here: needs 4 bytes, but 2 are left", "break rest framing selected"}));
    EXPECT_EQ(seen.at("frame"), "lumo_tarn_debug_setting_msg, broken, 53 bytes");
    EXPECT_EQ(seen.at("rest"), 2);
    EXPECT_EQ(seen.at("bytes"), bytes(members_at, 4));
}

TEST(View, NamesACutFrameAndMarksWhereItBreaks) {
    const Directory directory;
    const std::string bytes = debug_answer(1, 5);
    const auto seen_of = [&](const std::string &frames) {
        const Outcome outcome = tool_test::tarn({"view", directory.write("a.bin", frames)});
        EXPECT_EQ(outcome.exit, 2);
        return seen_in(outcome.out, R"(
            const frames = [...document.querySelectorAll('.row.frame')];
            seen.frame = frames[frames.length - 1].querySelector('.name').textContent;
            seen.mark = [selected.path, selected.row.querySelector('.broken').textContent];
            const marks = [...document.querySelectorAll('.dump i.break')].map(i => Number(i.dataset.at));
            seen.at = marks[0];
            document.querySelector('.error').click();
            seen.address = decodeURI(document.querySelector('.error').hash);)");
    };
    const json header = seen_of(bytes.substr(0, 43 + 10));
    EXPECT_EQ(header.at("frame"), "cut frame");
    EXPECT_EQ(header.at("mark"), (json{"header.stamp", "breaks here: needs 4 bytes, but 2 are left"}));
    EXPECT_EQ(header.at("at"), 43 + 8);
    EXPECT_EQ(header.at("address"), "#1:header.stamp");
    // Between two members, so that no bytes are left.
    const json between = seen_of(bytes.substr(0, members_at + 8));
    EXPECT_EQ(between.at("frame"), "lumo_tarn_debug_setting_msg");
    EXPECT_EQ(between.at("mark"), (json{"payload.warn_enabled", "breaks here: needs 4 bytes, but 0 are left"}));
    EXPECT_EQ(between.at("at"), members_at + 8);
    std::string jump = bytes;
    jump[members_at - 1] = 3;
    const json inside = seen_of(jump);
    EXPECT_EQ(inside.at("mark"), (json{"payload.@jump", "breaks here: jump 3 ends at 91, but the members end at 108"}));
    EXPECT_EQ(inside.at("at"), members_at - 4);
    std::string length = bytes;
    length[43 + 15] = static_cast<char>(length[43 + 15] + 9);
    length.resize(43 + 65);
    const json end = seen_of(length);
    EXPECT_EQ(end.at("mark"), (json{"@end", "breaks here: truncated: the total length is 74, but there are 65 bytes"}));
    EXPECT_EQ(end.at("at"), 43 + 65);
}

// The parts of a frame in JSON, in order and with their paths. The value of a boolean or an enumeration has the path of
// its group, as bytes of a newer version have that of their record; the elements of a list have names of their own.
void add_pieces(const json &group, const std::string &path, json &pieces, json &addresses) {
    const bool of_value = group.at("parts").size() == 2 && group.at("parts")[1].value("name", "") == "value";
    for (const json &part : group.at("parts")) {
        std::string below = path + (path.ends_with(':') ? "" : ".") + part.at("name").get<std::string>();
        if (part.contains("index")) below += "[" + part.at("index").dump() + "]";
        if (part.contains("parts")) {
            if (part.contains("text")) addresses.push_back({below, part.at("text")});
            const bool is_list = !part.at("parts").empty() && part.at("parts")[0].contains("index");
            add_pieces(part, is_list ? path : below, pieces, addresses);
            continue;
        }
        const std::string &kind = part.at("kind").get_ref<const std::string &>();
        if (kind == "state") below += ".state";
        if (kind == "skipped" || (of_value && kind != "variant")) below = path;
        const json &value = part.contains("text") ? part.at("text") : part.at("value");
        pieces.push_back({part.at("offset"), part.at("size"), below, kind, value});
    }
}

// The page derives names and values from shapes and bytes. They must be those of tarn dissect.
TEST(View, ShowsTheSamePiecesAsDissect) {
    const Directory directory;
    reference::GeneratorOptions options;
    options.min_elements = 2;
    std::string frames = debug_answer(1, 5);
    for (const reference::MessageTable &message : reference::messages()) {
        for (const bool tracked : {false, true}) {
            const reference::Record payload = reference::Generator(7, options).make(message.payload);
            frames += tool_test::frame(message, payload, tracked);
        }
    }
    const std::string name = directory.write("a.bin", frames);
    const json seen = seen_in(page_of({name}), R"(
        const pieces = [], addresses = [];
        const walk = (node, frame) => {
            const piece = pieceOf(node, 0), path = frame + ':' + node.path.replace('@', '');
            if (isAddress(node, 0)) addresses.push([path, valueOf(node, 0)]);
            if (piece) pieces.push([piece.at, piece.shape.size, path, piece.shape.kind, valueOf(node, 0)]);
            for (let i = 0; i < list(node).length; ++i) walk(childAt(node, i), frame);
        };
        roots.forEach(walk);
        seen.pieces = pieces.sort((a, b) => a[0] - b[0]);
        seen.addresses = addresses;)");
    const Outcome dissected = tool_test::tarn({"dissect", "--json", name});
    ASSERT_EQ(dissected.exit, 0) << dissected.err;
    json pieces = json::array(), addresses = json::array();
    std::size_t number = 0;
    std::istringstream lines(dissected.out);
    for (std::string line; std::getline(lines, line); ++number) {
        add_pieces(json::parse(line), std::to_string(number) + ":", pieces, addresses);
    }
    ASSERT_EQ(number, 3 + 2 * 10);
    EXPECT_EQ(seen.at("pieces"), pieces);
    EXPECT_EQ(seen.at("addresses"), addresses);
    EXPECT_GT(addresses.size(), 20U);
}

TEST(View, ShowsAddressesInTheFormOfTheLibrary) {
    const std::vector<std::string> texts{"unset",
                                         "10.0.0.0/8",
                                         "0.0.0.0/1",
                                         "255.255.255.255/32",
                                         "10.1.2.3%7/32",
                                         "2001:db8::/32",
                                         "::/1",
                                         "::1/128",
                                         "::10.1.2.3/128",
                                         "::ffff:10.1.2.3/96",
                                         "fe80::1%65535/64",
                                         "1:2:3:4:5:6:7:8/128",
                                         "1:0:3:4:5:6:7:8/128",
                                         "1:0:0:4:0:0:0:8/128",
                                         "1:2:3:4:5:6::/128",
                                         "0:0:3:4:5:6:7:8/128",
                                         "7,0,1,2,3,4294967295/9",
                                         "2,0,1,0,0,5/8"};
    std::string prefixes;
    for (const std::string &text : texts) {
        prefixes += (prefixes.empty() ? "" : ", ") + (R"({"lookup_prefix": ")" + text + "\"}");
    }
    const Outcome frame = tool_test::tarn(
        {"encode"}, R"({"message": "lumo_tarn_dp_mp_prefix_msg", "payload": {"prefix_data": [)" + prefixes + "]}}");
    ASSERT_EQ(frame.exit, 0) << frame.err;
    const json decoded = json::parse(tool_test::tarn({"decode", "--json"}, frame.out).out);
    json expected = json::array();
    for (const json &prefix : decoded.at("payload").at("prefix_data")) {
        expected.push_back(prefix.at("lookup_prefix"));
    }
    ASSERT_EQ(expected.size(), texts.size());
    const Directory directory;
    const json seen = seen_in(page_of({directory.write("a.bin", frame.out)}), R"(
        const list = nodeOf('0:payload.prefix_data');
        seen.texts = [...Array(sizeOf(list)).keys()].map(i => valueOf(childOf(childAt(list, i), 'lookup_prefix'), 0));
        type('2001:DB8::/32');
        seen.found = [found(), selectedRows()];
        type('payload.prefix_data[2].lookup_prefix.word[0]');
        seen.word = selectedRows();)");
    EXPECT_EQ(seen.at("texts"), expected);
    EXPECT_EQ(seen.at("found"), (json{"1 of 1", {"payload.prefix_data[5].lookup_prefix"}}));
    EXPECT_EQ(seen.at("word"), json{"payload.prefix_data[2].lookup_prefix.word[0]"});
}

// Of all that differs in an address, its text is what people compare.
TEST(View, CountsADifferenceOfAnAddressOnce) {
    const auto frame = [](const std::string &prefix, const std::string &pointer) {
        return tool_test::tarn({"encode"}, R"({"message": "lumo_tarn_dp_mp_prefix_msg", "payload": {"prefix_data": [
            {"lookup_prefix": ")" + prefix + R"(", "complex_data": [{"tc_list_ptr": ")" +
                                               pointer + R"("}]}]}})")
            .out;
    };
    const Directory directory;
    const std::string a = directory.write("a.bin", frame("10.0.0.0/8", "139637976727552")),
                      b = directory.write("b.bin", frame("2001:db8::/32", "139637976727808"));
    const json seen = seen_in(page_of({a, b}), R"(
        const values = path => [...rowAt(path).querySelectorAll('.value')].map(v => v.textContent);
        seen.first = [found(), selectedRows(), values(selected.path), rowAt(selected.path).getAttribute('aria-label')];
        document.getElementById('next').click();
        seen.next = [found(), values(selected.path)];
        type('0X7F00000001');
        seen.pointer = [found(), selectedRows()];)");
    EXPECT_EQ(seen.at("first"), (json{"1 of 2 changes",
                                      {"payload.prefix_data[0].lookup_prefix"},
                                      {"10.0.0.0/8", "2001:db8::/32"},
                                      "lookup_prefix, 10.0.0.0/8, now 2001:db8::/32, ip_address, 26 bytes"}));
    EXPECT_EQ(seen.at("next"), (json{"2 of 2 changes", {"0x7f0000000000", "0x7f0000000100"}}));
    EXPECT_EQ(seen.at("pointer"), (json{"1 of 1", {"payload.prefix_data[0].complex_data[0].tc_list_ptr"}}));
}

// Elements of the same shape take little more than their bytes.
TEST(View, SizeIsProportionalToItsBytes) {
    const Directory directory;
    const auto size = [&](const std::string &frame_size) {
        const std::string file = directory.path("answer.bin");
        const Outcome made = tool_test::tarn(
            {"generate", "dp-appl-cfg", "--size", frame_size, "--tracked", "--form", "frames", "-o", file});
        EXPECT_EQ(made.exit, 0) << made.err;
        return page_of({file}).size();
    };
    EXPECT_LT(size("128K") - size("32K"), 2 * (128 - 32) * 1024);
}

TEST(View, CreatesOnlyTheVisibleRowsOfALongList) {
    const Directory directory;
    const std::string frames = directory.path("answer.bin");
    ASSERT_EQ(tool_test::tarn({"generate", "dp-appl-cfg", "--size", "256K", "--form", "frames", "-o", frames}).exit, 0);
    const json seen = seen_in(page_of({frames}), R"(
        seen.rows = document.querySelectorAll('.row').length;
        const node = [...rows.values()].find(node => node.path === 'payload.lumo_data[0].sig_list');
        unfold(node);
        seen.open = document.querySelectorAll('.row').length - seen.rows;
        seen.elements = sizeOf(node);
        seen.nodes = count;
        type('payload.lumo_data[0].sig_list[1234].appl_id');
        seen.found = [found(), selectedRows()];
        type('appl_');
        while (scan) continueSearch(scan);
        seen.many = found();)");
    EXPECT_LT(seen.at("rows"), 200);
    EXPECT_EQ(seen.at("open"), 200);
    EXPECT_GT(seen.at("elements"), 1000);
    // Each row has made its own members, to see whether there are any.
    EXPECT_LT(seen.at("nodes"), 200 * 16 + 1000);
    EXPECT_EQ(seen.at("found"), (json{"1 of 1", {"payload.lumo_data[0].sig_list[1234].appl_id"}}));
    EXPECT_EQ(seen.at("many"), "1 of 5000 or more");
}

TEST(View, RemovesTheRowsOfALongListThatAreOutOfSight) {
    const Directory directory;
    const std::string frames = directory.path("answer.bin");
    ASSERT_EQ(tool_test::tarn({"generate", "dp-appl-cfg", "--size", "256K", "--form", "frames", "-o", frames}).exit, 0);
    const json seen = seen_in(page_of({frames}), R"(
        const list = nodeOf('0:payload.lumo_data[0].sig_list'), few = document.querySelectorAll('.row').length;
        reveal(list);
        unfold(list);
        unfold(childAt(list, 5));
        list.boxes.forEach(draw);
        seen.all = document.querySelectorAll('.row').length - few >= sizeOf(list);
        const height = list.boxes[0].offsetHeight;
        list.boxes.forEach(erase);
        seen.left = [document.querySelectorAll('.row').length - few, list.boxes[0].offsetHeight === height];
        draw(list.boxes[0]);
        seen.again = [childAt(list, 5).open, list.boxes[0].offsetHeight === height, Boolean(rowAt(list.path + '[199]')),
                      Boolean(rowAt(list.path + '[5].appl_id'))];)");
    EXPECT_EQ(seen.at("all"), true);
    EXPECT_EQ(seen.at("left"), (json{0, true}));
    EXPECT_EQ(seen.at("again"), (json{true, true, true, true}));
}

TEST(View, SearchesALargeFrameInSlices) {
    const Directory directory;
    const std::string frames = directory.path("answer.bin");
    ASSERT_EQ(tool_test::tarn({"generate", "dp-appl-cfg", "--size", "256K", "--form", "frames", "-o", frames}).exit, 0);
    const json seen = seen_in(page_of({frames}), R"(
        const original = valueAt, slices = [];
        let now = 0;
        performance.now = () => now += sliceMilliseconds / 4;
        const last = nodeOf('0:payload.lumo_data[1].sig_list'), element = childAt(last, sizeOf(last) - 1);
        const numbers = list(element).map(node => [valueOf(node, 0) || '', node]).filter(([v]) => /^\d+$/.test(v));
        const [wanted, node] = numbers.sort(([a], [b]) => b.length - a.length)[0];
        valueAt = (...all) => { ++slices[slices.length - 1]; return original(...all); };
        slices.push(0);
        type(wanted);
        seen.first = found().endsWith('\u2026');
        while (scan) { slices.push(0); continueSearch(scan); }
        seen.most = Math.max(...slices);
        seen.all = slices.reduce((sum, n) => sum + n, 0);
        seen.hits = order.includes(keyOf(node));
        const before = slices.length;
        type('x');
        type('');
        while (scan) { slices.push(0); continueSearch(scan); }
        seen.dropped = [slices.length - before, found()];)");
    EXPECT_EQ(seen.at("first"), true);
    // The clock is read when a slice begins, and after 1000 values at most.
    EXPECT_LE(seen.at("most"), 4 * 1000);
    EXPECT_GT(seen.at("all"), 20000);
    EXPECT_EQ(seen.at("hits"), true);
    EXPECT_EQ(seen.at("dropped"), (json{0, ""}));
}

TEST(View, ShowsARecordOfANewerVersion) {
    const Directory directory;
    std::string newer = debug_answer(1, 5);
    newer.insert(members_at + 16, "new");
    for (const unsigned length : {43U + 15, members_at - 1}) newer[length] = static_cast<char>(newer[length] + 3);
    const json seen = seen_in(page_of({directory.write("a.bin", newer)}), R"(
        pointAt(rowAt('payload.warn_enabled'));
        seen.warn = markedBytes(0);
        document.getElementById('framing').click();
        pointAt(rowAt('payload.@skipped'));
        seen.skipped = [markedBytes(0), rowAt('payload.@skipped').textContent];)");
    EXPECT_EQ(seen.at("warn"), bytes(members_at + 8, 4));
    EXPECT_EQ(seen.at("skipped"), (json{bytes(members_at + 16, 3), "@skipped3 bytes of a newer version"}));
}

TEST(View, ReadsXmlAndJsonAsFrames) {
    const Directory directory;
    const std::string frames = debug_answer(1, 5);
    const Outcome xml = tool_test::tarn({"decode", "--xml"}, frames),
                  lines = tool_test::tarn({"decode", "--json"}, frames);
    std::set<std::string> bytes;
    for (const std::string &content : {frames, xml.out, lines.out}) {
        const std::string page = page_of({directory.write("a", content)});
        const std::string begin = "\"bytes\":\"";
        const std::size_t from = page.find(begin) + begin.size();
        bytes.insert(page.substr(from, page.find('"', from) - from));
    }
    ASSERT_EQ(bytes.size(), 1U);
    EXPECT_EQ(bytes.begin()->size(), (frames.size() + 2) / 3 * 4);
}

TEST(View, RefusesInvalidInput) {
    const Directory directory;
    EXPECT_EQ(tool_test::tarn({"view"}).exit, 2);
    EXPECT_EQ(tool_test::tarn({"view", "-"}, "").exit, 2);
    EXPECT_EQ(tool_test::tarn({"view", "-"}, "hello").exit, 2);
    EXPECT_EQ(tool_test::tarn({"view", "-"}, "<no_such_msg/>").exit, 2);
    EXPECT_EQ(tool_test::tarn({"view", directory.path("absent")}).exit, 3);
    EXPECT_EQ(tool_test::tarn({"view", "-", "-o", directory.path("absent/page.html")}, debug_answer(1, 1)).exit, 3);
}

TEST(Schema, PageHasEveryRecordAndItsMembers) {
    const Outcome page = tool_test::tarn({"schema", "--html"});
    ASSERT_EQ(page.exit, 0) << page.err;
    const json seen = seen_in(page.out, R"(
        seen.summary = document.getElementById('summary').textContent;
        seen.members = {};
        for (const [name, node] of nodes) {
            node.dispatchEvent(new MouseEvent('click', {bubbles: true}));
            seen.members[name] = [...document.querySelectorAll('#table tr[data-name]')].map(r => r.dataset.name);
        }
        const inner = nodes.get('lumo_tarn_dp_appl');
        pointAt(inner);
        seen.lit = [...document.querySelectorAll('.node.lit')].map(n => n.dataset.name);
        type('sub-protocol');
        seen.found = [found(), [...document.querySelectorAll('.node.hit')].map(n => n.dataset.name)];)");
    const auto counted = [](std::size_t n, const char *what) { return std::to_string(n) + " " + what; };
    EXPECT_EQ(seen.at("summary"), counted(reference::bundles().size(), "bundles, ") +
                                      counted(reference::messages().size(), "messages, ") +
                                      counted(reference::records().size(), "records, ") +
                                      counted(reference::enumerations().size(), "enumerations"));
    for (const reference::RecordTable &record : reference::records()) {
        json names = json::array();
        for (const reference::MemberTable &member : record.members) names.push_back(member.name);
        EXPECT_EQ(seen.at("members").value(record.name, json()), names) << record.name;
    }
    EXPECT_EQ(seen.at("members").size(),
              reference::bundles().size() + reference::messages().size() + reference::records().size());
    const std::set<std::string> lit(seen.at("lit").begin(), seen.at("lit").end());
    EXPECT_TRUE(lit.contains("lumo_tarn_dp_tt_cfg_rsp") && lit.contains("lumo_tarn_exmem_info"));
    EXPECT_FALSE(lit.contains("lumo_tarn_cl_debug_rsp"));
    EXPECT_EQ(seen.at("found"), (json{"1 found", {"lumo_tarn_cl_kesh_appl"}}));
    EXPECT_EQ(tool_test::tarn({"schema", "lumo_tarn_dp_tc", "--html"}).exit, 2);
}

// Control characters and reversals in strings, in the name of a file and in the address.
TEST(Pages, ShowTextFromOutsideAsText) {
    const std::string hostile = "\x1b[31m<b>\n\u009b31m\u202e\x7f\xff";
    const reference::MessageTable &message = reference::message_table("lumo_tarn_dp_intf_msg");
    reference::Record payload(message.payload);
    payload["intf_name"].text = hostile;
    const Directory directory;
    const std::string file = directory.write("a" + hostile, tool_test::frame(message, payload, false));
    const char *const look = R"(
        const unsafe = /[\u0000-\u001f\u007f-\u009f\u061c\u200e\u200f\u2028-\u202e\u2066-\u2069]/;
        const words = [document.title];
        const walk = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        while (walk.nextNode()) if (!walk.currentNode.parentNode.closest('script')) words.push(walk.currentNode.data);
        seen.unsafe = words.filter(w => w.trim() && unsafe.test(w.replaceAll('\n', ' ')));
        seen.all = words.join('|');)";
    const json view = seen_in(page_of({file}), look, "#%");
    EXPECT_EQ(view.at("unsafe"), json::array());
    EXPECT_NE(view.at("all").get<std::string>().find("a\\x1b[31m<b>\\x0a\\u009b31m\\u202e\\x7f\\xff"),
              std::string::npos);
    EXPECT_NE(view.at("all").get<std::string>().find("\"\\x1b[31m<b>\\x0a"), std::string::npos) << view.at("all");
    EXPECT_EQ(seen_in(tool_test::tarn({"schema", "--html"}).out, look, "#%").at("unsafe"), json::array());
}

TEST(Pages, LoadNothingAndRender) {
    const Directory directory;
    for (std::string page :
         {page_of({directory.write("a.bin", debug_answer(1, 5))}), tool_test::tarn({"schema", "--html"}).out}) {
        EXPECT_NE(page.find("default-src 'none'"), std::string::npos);
        for (const char *fetching : {" src=", " href=", "@import", "url("}) {
            EXPECT_EQ(page.find(fetching), std::string::npos) << fetching;
        }
        const std::string picture = directory.path("page.png");
        chromium(directory.write("page.html", page), {"--screenshot=" + picture});
        const std::string png = directory.read("page.png");
        ASSERT_GT(png.size(), 20000U);  // a single color takes far less
        EXPECT_EQ(png.substr(0, 4), "\x89PNG");
        EXPECT_EQ(png.substr(16, 8), std::string("\0\0\5\0\0\0\3\x20", 8));
    }
}

}  // namespace

}  // namespace pages
