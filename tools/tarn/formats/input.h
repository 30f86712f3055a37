// Reads files and folders of any format: frames, also as hexadecimal text or in a network capture, XML or JSON. At most
// one message is in memory.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mirk_platform.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/frame_reader.h"
#include "tools/tarn/formats/item.h"
#include "tools/tarn/formats/problems.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct InputOptions {
    std::vector<std::string> paths;  // files and folders; "-" or none: standard input
    From from = From::detect;
    bool lenient = false;
    bool keep_going = false;                      // behind what is broken
    std::uint16_t port = MIRK_PLATFORM_TCP_PORT;  // of the connections in a network capture
    bool shows_progress = true;                   // on a terminal
    bool checks_frames = false;                   // sets Entry::broken
    Tracking tracking = Tracking::as_input;
    std::function<void(const Failure &)> report = {};  // gets what cannot be read, which is then not printed
};

// A message or a control message of a file.
struct Entry {
    Item item;
    std::string_view file;                    // as messages print it
    std::size_t number;                       // of the message in the file, from 1; 0 for a control message
    const reflect::BundleOperations *bundle;  // that contains it; null outside bundles
    std::optional<Break> broken = {};         // what is broken in a frame that the library reads all the same
    std::string_view connection = {};         // in a network capture: "10.0.0.1:28276 to 10.0.0.2:40000"
};

// The entries of one file, one after the other.
class EntryReader {
public:
    // The handles and the stream must outlive it.
    EntryReader(const Handles &handles, ByteStream &stream, const InputOptions &options);
    EntryReader(const EntryReader &) = delete;
    EntryReader &operator=(const EntryReader &) = delete;
    ~EntryReader();

    // The next entry; none at the end. Throws a Failure for an entry that cannot be read. Then the next call returns
    // the entry behind it, or none if there is no way to find it.
    std::optional<Entry> next();

    // The items of one format. The interface of next() is the same.
    class Source {
    public:
        virtual ~Source() = default;
        virtual std::optional<Item> next() = 0;
        virtual std::optional<Break> broken() const { return {}; }  // of the last item
    };

private:
    const std::string file_;
    std::unique_ptr<Source> source_;
    std::size_t number_ = 0;
    const reflect::BundleOperations *bundle_ = nullptr;
};

// The files that the paths stand for: of a folder, the files in it and in the folders in it, in the order of their
// names. A path that does not exist stays, so that opening it reports it.
struct InputFile {
    std::string path;
    std::string name;  // without the path of its folder, or that of the given folder
};
std::vector<InputFile> files_of(const std::vector<std::string> &paths);

// A file, or what one side of a connection in a network capture sent.
struct Opened {
    std::string connection;  // empty for a file
    ByteStream stream;
};
// Of a network capture, all connections with the port. `failures` gets what is missing in it.
std::vector<Opened> open_sources(const std::string &path, From from, std::uint16_t port, Failures &failures);

// With the place where the frame is broken, which the library does not report.
Invalid with_cause(const Failure &failure, const Frame &frame);

// Thrown by a visitor to end the reading without an error of its own.
struct StopReading {};

// Calls `visit` for each entry of each file. Prints what cannot be read, and continues: with `keep_going` behind it,
// else with the next file. Returns the highest exit code of what was printed. A Failure that `visit` throws counts as
// if the entry could not be read; one of the environment ends the command.
Exit for_each_item(const InputOptions &options, const std::function<void(Entry &)> &visit);
// With handles that outlive the call.
Exit for_each_item(const InputOptions &options, const Handles &handles, const std::function<void(Entry &)> &visit);

// The same for files that contain frames, as bytes. `visit` also gets the parts that are not frames, before they are
// reported, and may say more about their fault.
Exit for_each_stretch(const InputOptions &options,
                      const std::function<void(Stretch &, const std::string &file)> &visit);

}  // namespace tarn::tool
