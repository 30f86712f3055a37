#include "tools/tarn/commands/many_files.h"

#include <atomic>
#include <exception>
#include <filesystem>
#include <mutex>
#include <thread>

#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

// Calls `work` with 0 to count - 1 on several threads. Rethrows the first exception after all threads have ended.
void run_in_parallel(std::size_t count, unsigned threads, const std::function<void(std::size_t)> &work) {
    std::atomic<std::size_t> next = 0;
    std::exception_ptr first;
    std::mutex lock;
    const auto run = [&] {
        try {
            for (std::size_t i = next++; i < count; i = next++) work(i);
        } catch (...) {
            next = count;
            const std::lock_guard<std::mutex> hold(lock);
            if (first == nullptr) first = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> others;
        for (unsigned i = 1; i < threads; ++i) others.emplace_back(run);
        run();
    }
    if (first != nullptr) std::rethrow_exception(first);
}

Exit convert_to_file(const InputOptions &file, bool keeps, const std::string &path, const Convert &convert) {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    OutputFile out(path);
    const Exit exit = convert(file, [&](std::string_view piece) { out.append(piece); });
    if (exit == Exit::success || (keeps && !out.is_empty())) out.finish();
    return exit;
}

}  // namespace

void add_output_directory(CLI::App &command, OutputOptions &options) {
    CLI::Option *directory = command
                                 .add_option("--output-directory", options.directory,
                                             "Write a file for each input file to this folder, which is created")
                                 ->type_name(words::file);
    command.add_option("--jobs", options.jobs, "Number of files that are converted at the same time")
        ->check(CLI::Range(1, 256).description(""))
        ->type_name("NUMBER")
        ->capture_default_str()
        ->needs(directory);
}

Exit convert_files(const InputOptions &input, const OutputOptions &output, std::string_view suffix,
                   const Convert &convert) {
    if (output.directory.empty()) return convert(input, [](std::string_view piece) { write_file("-", piece); });
    const std::vector<InputFile> files = files_of(input.paths);
    Failures failures(true);
    std::mutex lock;
    Progress progress("converting");
    std::size_t done = 0;
    run_in_parallel(files.size(), output.jobs, [&](std::size_t i) {
        InputOptions one = input;
        one.paths = {files[i].path};
        one.shows_progress = false;
        const auto path = std::filesystem::path(output.directory) / (files[i].name + std::string(suffix));
        Exit exit = Exit::success;
        std::optional<Failure> failure;
        try {
            exit = convert_to_file(one, input.keep_going, path, convert);
        } catch (const Failure &caught) {
            if (caught.exit() == Exit::environment) throw;
            failure = caught;
        }
        const std::lock_guard<std::mutex> hold(lock);
        if (failure) failures.add(*failure);
        failures.add(exit);
        progress.at(++done, files.size());
    });
    return failures.exit();
}

}  // namespace tarn::tool
