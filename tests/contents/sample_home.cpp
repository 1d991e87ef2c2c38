#include "sample_home.h"

#include "engine/text/utf.h"
#include "platform/paths.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view home = "home/anna/";

// More samples may come; the texts are those of these.
constexpr std::array<std::string_view, 21> samples{
    "Meeting notes.txt",
    "LOGO.SVG",
    "README",
    ".hidden settings",
    "scan (1).txt",
    "backup.2024-03-17.tar.gz.part",
    "Documents/build_report.py",
    "Documents/Letters/Dear Zoë.txt",
    "Documents/Letters/old letters.zip",
    "Documents/Letters/2023/Answer.to.the.City.txt",
    "Photos/IMG_0001.png",
    "Photos/captions.txt",
    "Photos/Trip to the Coast/Day 1/Beach.PNG",
    "Photos/Trip to the Coast/Day 1/Lighthouse.png",
    "Photos/Trip to the Coast/Day 2/track.gpx",
    "Sounds/bell.wav",
    "Sounds/Morning Bell.mp3",
    "Photos/Harbour.jpg",
    "Films/Test Card.mp4",
    "Documents/Tide tables.pdf",
    "Documents/Report.docx",
};

// Named for what commands tell by the name alone; nothing reads what is in them but checksums.
constexpr std::array<std::string_view, 6> others{
    "Tom's \"50%\" list.txt", "Site/style.css", "Site/app.js", "Site/Title.woff2", "Site/util.h", "Books/Novel.epub",
};

constexpr std::array<std::string_view, 11> mixed{
    "Meeting notes.txt",
    "LOGO.SVG",
    "Photos/Trip to the Coast",
    "README",
    ".hidden settings",
    "Tom's \"50%\" list.txt",
    "Documents",
    "Sounds",
    "Photos/IMG_0001.png",
    "latest notes",
    "backup.2024-03-17.tar.gz.part",
};

constexpr std::array<std::string_view, 14> kinds{
    "scan (1).txt",
    "Documents/build_report.py",
    "Documents/Letters/old letters.zip",
    "Sounds/bell.wav",
    "Site/style.css",
    "Site/app.js",
    "Site/Title.woff2",
    "Site/util.h",
    "Photos/Harbour.jpg",
    "Sounds/Morning Bell.mp3",
    "Films/Test Card.mp4",
    "Documents/Tide tables.pdf",
    "Documents/Report.docx",
    "Books/Novel.epub",
};

constexpr std::array<std::string_view, 1> one_file{"README"}, one_folder{"Photos"};

template <std::size_t N>
std::vector<std::u16string> in_home(const std::array<std::string_view, N>& names)
{
    std::vector<std::u16string> paths;
    for (const std::string_view name : names) {
        std::string path = "C:/" + std::string(home) + std::string(name);
        std::ranges::replace(path, '/', '\\');
        paths.push_back(to_utf16(path));
    }
    return paths;
}

}

SampleHome::SampleHome()
{
    for (const std::string_view name : samples)
        copy_sample(name);
    for (const std::string_view name : others)
        folder_.write(std::string(home) + std::string(name), "stands for " + std::string(name) + "\n");
    folder_.make_link(std::string(home) + "latest notes", "Meeting notes.txt");

    std::vector<std::string> entries;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.host()))
        entries.push_back(entry.path().lexically_relative(folder_.host()).string());
    std::ranges::sort(entries);
    long long seconds = 1'709'290'801; // 1 March 2024, 11:00:01
    for (const std::string& entry : entries)
        folder_.set_modified(entry, seconds += 100'003);
    platform::set_host_root(folder_.host());
}

SampleHome::~SampleHome()
{
    platform::set_host_root("/");
}

void SampleHome::copy_sample(std::string_view name)
{
    const fs::path to = folder_.host(std::string(home) + std::string(name));
    fs::create_directories(to.parent_path());
    fs::copy_file(fs::path(SAMPLES_FOLDER) / name, to);
}

std::vector<std::vector<std::u16string>> SampleHome::selections()
{
    return {in_home(mixed), in_home(kinds), in_home(one_file), in_home(one_folder)};
}
