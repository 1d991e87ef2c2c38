#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// A process that this one has started, a zombie included.
struct ChildProcess {
    pid_t id = 0;
    char state = '?';
};

/// In no particular order.
inline std::vector<ChildProcess> child_processes()
{
    std::vector<ChildProcess> result;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        std::string status;
        std::getline(std::ifstream(entry.path() / "stat"), status);
        // The name in brackets can hold anything.
        std::istringstream rest(status.substr(std::min(status.rfind(')') + 1, status.size())));
        ChildProcess child;
        pid_t parent = 0;
        if (rest >> child.state >> parent && parent == getpid()) {
            child.id = std::stoi(status);
            result.push_back(child);
        }
    }
    return result;
}

/// The most memory that this process, or one that it has started and waited for or that still runs, ever had, in MB.
inline long peak_megabytes()
{
    rusage own{}, waited_for{};
    getrusage(RUSAGE_SELF, &own);
    getrusage(RUSAGE_CHILDREN, &waited_for);
    long kilobytes = std::max(own.ru_maxrss, waited_for.ru_maxrss);
    for (const auto& child : child_processes()) {
        std::ifstream status("/proc/" + std::to_string(child.id) + "/status");
        for (std::string word; status >> word;)
            if (long peak = 0; word == "VmHWM:" && status >> peak)
                kilobytes = std::max(kilobytes, peak);
    }
    return kilobytes / 1024;
}
