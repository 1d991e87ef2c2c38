#pragma once

#include "platform/host/properties/helper_process.h"

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// UTF-8 by the name of the field ("Video;Width"), fields without a text left out.
using MediaTexts = std::map<std::string, std::string, std::less<>>;

/// The programs that read films for us. MediaInfo takes minutes and gigabytes over some damaged files, so it never
/// runs in this process. A program that doesn't answer in time is killed. Any thread may ask: each has a program to
/// itself meanwhile, so that nobody waits for another's hostile file, and the programs are kept for the next files.
class MediaReaders
{
public:
    /// Host path of the program, which need not exist.
    explicit MediaReaders(std::string program) : program_(std::move(program)) {}

    /// `file` is open for reading; `fields` are the names of the wanted fields, each with U+0000 behind it. Empty
    /// when the program can't be started, dies of the file or doesn't answer; takes `longest_wait` and little more.
    MediaTexts ask(int file, std::string_view fields);

    static constexpr std::chrono::seconds longest_wait{2};

private:
    std::string program_;
    std::mutex mutex_;
    std::vector<HelperProcess> idle_;

    HelperProcess take_idle();
    void put_back(HelperProcess process);
};

/// With the program that lies beside the running one.
MediaReaders& media_readers();

}
