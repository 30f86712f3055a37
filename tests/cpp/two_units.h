// Uses each part of the C++ interface. Both units of a program without exceptions include it, and call it.
#pragma once

#include <lumo_ui_tarn/exchange.hpp>

#include <cerrno>
#include <cstdio>
#include <set>
#include <sstream>
#include <string>
#include <unordered_set>

namespace units {

inline int failures = 0;

inline void expect(bool holds, const char *what) {
    if (holds) return;
    std::printf("failed: %s\n", what);
    ++failures;
}

inline void use_everything() {
    using namespace lumo_ui_tarn;
    const handle h(MIRK_PLATFORM_TRACKING_ON);
    context c(h);
    dp_tt_msg message(c);
    const auto tables = message.payload().lumo_data();
    tables.grow(2)[1].set_lumo_num(7).agg_tc_list().tc_list().grow(3)[2].set_src_prefix(*address::parse("::1/128"));
    std::size_t classes = 0;
    for (const dp_tt_table_ref table : tables) classes += table.agg_tc_list().tc_list().size();
    expect(classes == 3, "lists are ranges");

    bundle_writer<dp_tt_cfg_rsp> writer(c);
    writer.add(message).commit();
    bundle_reader<dp_tt_cfg_rsp> reader(c);
    reader.feed(writer.frames());
    const auto bundle = reader.next();
    reader.finish();
    expect(c.ok() && bundle && bundle->size() == 1, "a bundle is read");
    expect(bundle && bundle->front().payload() == message.payload(), "with its payload");
    reader.feed("garbage", 7);
    reader.finish();
    expect(c.take_error().value() == EBADMSG, "garbage is an error");

    const dp_tc_ref tc = tables[1].agg_tc_list().tc_list()[2];
    std::ostringstream line;
    line << tc << tc.src_prefix();
    expect(line.str().find("src_prefix=::1/128") != std::string::npos, "records are printed");
    expect(std::unordered_set<dp_tc_view>{tc, tc}.size() == 1, "records are hashed");
    expect(std::set<dp_tc_view>{tc, tables[1].agg_tc_list().tc_list()[0]}.size() == 2, "records are ordered");
    for_each_record([&](auto kind) {
        const typename decltype(kind)::type object(c);
        expect(to_string(object).back() == '}' && object == object.copy() && object.is_tracked(), "each record works");
    });

    expect(ask<cl_debug_rsp>(c, "/nonexistent/socket").empty(), "no process listens");
    expect(c.take_error().value() == ENOENT, "errors are kept");
    answers known;
    known.add<cl_debug_rsp>([](bundle_writer<cl_debug_rsp> &answer) { answer.commit(); });
    server nowhere("/nonexistent/socket", known);
    expect(nowhere.error().value() == ENOENT, "there is no such folder");
    nowhere.run();
}

// In the second unit.
void use_everything_again();

}  // namespace units
