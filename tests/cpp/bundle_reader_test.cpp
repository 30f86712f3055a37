// bundle_reader: whole bundles or an error, however the bytes are cut and whatever they are.
#include <random>
#include <string>

#include "tests/cpp/usage_support.h"

namespace {

using namespace lumo_ui_tarn;
using usage::expect_error;
using Reader = bundle_reader<dp_tt_cfg_rsp>;

class CppBundles : public usage::CppUsage {
protected:
    dp_tt_msg tables(std::uint16_t number) {
        dp_tt_msg message(c);
        message.payload().lumo_data().grow(2)[1].agg_tc_list().tc_list().grow(3)[2].set_id(number);
        return message;
    }
    // One message with each of the numbers.
    frame bundle(std::initializer_list<std::uint16_t> numbers) {
        bundle_writer<dp_tt_cfg_rsp> writer(c);
        for (const std::uint16_t number : numbers) writer.add(tables(number));
        return writer.commit().frames();
    }
    static frame slice(const frame &whole, std::size_t from, std::size_t to) {
        return {whole.data() + from, to - from};
    }
    frame start() { return slice(bundle({}), 0, 43); }
    frame commit() { return slice(bundle({}), 43, 86); }
    frame abort() { return slice(bundle_writer<dp_tt_cfg_rsp>(c).abort().frames(), 43, 86); }
    static std::string numbers(const Reader::bundle &bundle) {
        std::string text;
        for (const dp_tt_msg &message : bundle) {
            text += std::to_string(message.payload().lumo_data()[1].agg_tc_list().tc_list()[2].id()) + " ";
        }
        return text;
    }
    // All bundles that are read, and the names of errors, in order.
    static std::string read_all(Reader &reader) {
        std::string text;
        for (bool more = true; more;) {
            try {
                const auto bundle = reader.next();
                more = bundle.has_value();
                if (more) text += "[" + numbers(*bundle) + "] ";
            } catch (const std::system_error &error) {
                text += std::to_string(error.code().value()) + " ";
            }
        }
        return text;
    }
    static frame joined(std::initializer_list<frame> parts) {
        frame all;
        for (const frame &part : parts) all.append(part);
        return all;
    }
    std::string read(const frame &bytes) {
        Reader reader(c);
        reader.feed(bytes);
        return read_all(reader);
    }
    static std::string name(int number) { return std::to_string(number) + " "; }

    context c{handle};
};

TEST_F(CppBundles, AreReadWithTheirMessages) {
    EXPECT_EQ(read(bundle({7, 8})), "[7 8 ] ");
    EXPECT_EQ(read(bundle({})), "[] ");
    EXPECT_EQ(read(joined({bundle({1}), bundle({2, 3}), bundle({4})})), "[1 ] [2 3 ] [4 ] ");
    EXPECT_EQ(read(frame()), "");
}

TEST_F(CppBundles, MayBeCutAnywhere) {
    const frame bytes = joined({bundle({1}), bundle({2, 3})});
    std::mt19937 random(1);
    for (const std::size_t longest : {1u, 7u, 43u, 500u}) {
        Reader reader(c);
        std::string seen;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t size = std::min<std::size_t>(bytes.size() - at, 1 + random() % longest);
            reader.feed(bytes.data() + at, size);
            seen += read_all(reader);
            at += size;
        }
        reader.finish();
        EXPECT_EQ(seen, "[1 ] [2 3 ] ") << longest;
    }
}

TEST_F(CppBundles, ThatEndTooEarlyAreReportedByFinish) {
    const frame bytes = bundle({1});
    for (const std::size_t size : {std::size_t{1}, std::size_t{43}, bytes.size() - 43, bytes.size() - 1}) {
        Reader reader(c);
        reader.feed(bytes.data(), size);
        EXPECT_EQ(reader.next(), std::nullopt);
        expect_error(std::errc::bad_message, [&] { reader.finish(); });
    }
    Reader reader(c);
    reader.finish();
    reader.feed(bytes);
    EXPECT_NE(reader.next(), std::nullopt);
    reader.finish();
}

TEST_F(CppBundles, AreLostWhenTheyAreAborted) {
    EXPECT_EQ(read(joined({start(), tables(1).to_frame(), abort(), bundle({2})})), name(ECANCELED) + "[2 ] ");
}

TEST_F(CppBundles, ErrorsAreReportedOnceAndTheNextBundleIsRead) {
    const frame message = tables(1).to_frame(), next = bundle({9});
    EXPECT_EQ(read(joined({start(), message, start(), tables(2).to_frame(), commit()})), name(EEXIST) + "[2 ] ");
    EXPECT_EQ(read(joined({commit(), next})), name(EBADMSG) + "[9 ] ");
    EXPECT_EQ(read(joined({abort(), next})), name(EBADMSG) + "[9 ] ");
    EXPECT_EQ(read(joined({message, message, commit(), next})), name(EBADMSG) + "[9 ] ");
    const frame other = bundle_writer<cl_debug_rsp>(c).add(debug_setting_msg(c)).commit().frames();
    EXPECT_EQ(read(joined({other, next})), name(ENOENT) + "[9 ] ");
    EXPECT_EQ(read(joined({start(), message, debug_setting_msg(c).to_frame(), message, commit(), next})),
              name(ENOENT) + "[9 ] ");

    frame claiming = dp_tt_msg(c).to_frame();
    claiming.data()[43 + 8] = 1;  // the count; no element follows
    EXPECT_EQ(read(joined({start(), message, claiming, message, commit(), next})), name(EBADMSG) + "[9 ] ");
}

TEST_F(CppBundles, GarbageIsNotPassedOver) {
    Reader reader(c);
    reader.feed(bundle({1}));
    reader.feed(std::string(100, 'x').data(), 100);
    EXPECT_EQ(numbers(reader.next().value()), "1 ");
    for (int i = 0; i < 2; ++i) expect_error(std::errc::bad_message, [&] { (void)reader.next(); });
    frame shorter = start();
    shorter.data()[15] = 42;
    expect_error(std::errc::bad_message, [&] {
        Reader other(c);
        other.feed(shorter);
        (void)other.next();
    });
}

TEST_F(CppBundles, LimitsHold) {
    const frame bytes = bundle({1, 2});
    const std::size_t message = tables(1).to_frame().size();
    for (const bool fits : {true, false}) {
        Reader frames(c, {message - (fits ? 0 : 1), bytes.size()});
        frames.feed(bytes);
        Reader bundles(c, {message, 43 + 2 * message - (fits ? 0 : 1)});
        bundles.feed(bytes);
        bundles.feed(start());
        bundles.feed(commit());
        if (fits) {
            EXPECT_EQ(read_all(frames), "[1 2 ] ");
            EXPECT_EQ(read_all(bundles), "[1 2 ] [] ");
        } else {
            for (int i = 0; i < 2; ++i) expect_error(std::errc::message_size, [&] { (void)frames.next(); });
            EXPECT_EQ(read_all(bundles), name(EMSGSIZE) + "[] ");
        }
    }
    Reader early(c, {100, 100});
    early.feed(slice(tables(1).to_frame(), 0, 43));
    expect_error(std::errc::message_size, [&] { (void)early.next(); });
}

TEST_F(CppBundles, KeptErrorsStopTheReader) {
    context kept(handle, errors::kept);
    Reader reader(kept);
    reader.feed(joined({start(), tables(1).to_frame(), abort(), bundle({2})}));
    EXPECT_EQ(reader.next(), std::nullopt);
    EXPECT_EQ(kept.error().value(), ECANCELED);
    EXPECT_EQ(reader.next(), std::nullopt) << "until the error is taken";
    EXPECT_EQ(kept.take_error().value(), ECANCELED);
    EXPECT_EQ(numbers(reader.next().value()), "2 ");
}

// The fixture counts blocks, so the test fails if a message is leaked.
TEST_F(CppBundles, RandomDamageIsAnErrorOrAnotherValue) {
    const frame bytes = joined({bundle({1}), bundle({2, 3})});
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        frame damaged = bytes;
        for (int i = 0; i < 3; ++i) damaged.data()[random() % damaged.size()] = static_cast<std::uint8_t>(random());
        context kept(handle, errors::kept);
        Reader reader(kept);
        reader.feed(damaged);
        while (reader.next()) {
        }
        if (kept.ok()) reader.finish();
        refused += kept.ok() ? 0 : 1;
    }
    EXPECT_GT(refused, 300);
}

}  // namespace
