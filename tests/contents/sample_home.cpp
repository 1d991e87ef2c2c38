#include "sample_home.h"

#include "engine/text/utf.h"
#include "platform/paths.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view home = "home/anna/";

std::vector<std::string> names_below(std::string_view heading)
{
    std::vector<std::string> names;
    std::ifstream file(HOME_ENTRIES);
    bool is_below = false;
    for (std::string line; std::getline(file, line);)
        if (line.starts_with('['))
            is_below = line == "[" + std::string(heading) + "]";
        else if (is_below && !line.empty() && !line.starts_with('#'))
            names.push_back(line);
    return names;
}

std::vector<std::u16string> in_home(std::string_view heading)
{
    std::vector<std::u16string> paths;
    for (const std::string& name : names_below(heading)) {
        std::string path = "C:/" + std::string(home) + name;
        std::ranges::replace(path, '/', '\\');
        paths.push_back(to_utf16(path));
    }
    return paths;
}

}

SampleHome::SampleHome()
{
    for (const std::string& name : names_below("samples"))
        copy_sample(name);
    for (const std::string& name : names_below("others"))
        folder_.write(std::string(home) + name, "stands for " + name + "\n");
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
    return {in_home("mixed"), in_home("kinds"), in_home("one file"), in_home("one folder")};
}
