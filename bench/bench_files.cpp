#include "bench_files.h"

#include "platform/paths.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

BenchFiles::BenchFiles(std::size_t files)
{
    std::string name = (fs::canonical(fs::temp_directory_path()) / "vellumark-bench-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder");
    host_folder_ = name;
    folder_ = platform::from_host_path(host_folder_);
    for (std::size_t i = 0; i < files; ++i)
        paths_.push_back(write("A Picture Of " + std::to_string(10'000'000 + i) + ".jpeg", {}));
}

BenchFiles::~BenchFiles()
{
    std::error_code ignored;
    fs::remove_all(host_folder_, ignored);
}

std::u16string BenchFiles::write(const std::string& name, const std::string& content) const
{
    const std::string host_path = host_folder_ + "/" + name;
    std::ofstream file(host_path, std::ios::binary);
    if (!(file << content).flush())
        throw std::runtime_error("cannot write " + host_path);
    return platform::from_host_path(host_path);
}
