#include "engine/commands/checksum_pool.h"

#include "engine/checksums/file_checksum.h"
#include "engine/commands/parallel.h"
#include "engine/items/mv_item_folder.h"
#include "engine/parts/item_progress_sink.h"

#include <boost/unordered/unordered_flat_set.hpp>

#include <array>
#include <utility>
#include <vector>

namespace {

struct Job {
    const MVItemBase* file = nullptr;
    ChecksumType type{};
};

/// Files met before. Growing one large set would take long, with no chance to ask for cancellation meanwhile; each of
/// many small ones grows in no time.
class SeenFiles
{
public:
    /// False when the file has been added before.
    bool add(const MVItemBase& file)
    {
        const std::size_t hash = boost::hash<const MVItemBase*>()(&file);
        return sets_[hash % sets_.size()].insert(&file).second;
    }

private:
    std::array<boost::unordered_flat_set<const MVItemBase*>, 64> sets_;
};

class JobList
{
public:
    JobList(const std::set<ChecksumType>& types, CancelTest cancelled)
        : types_(types), cancel_point_(std::move(cancelled))
    {}

    void add_file(const MVItemBase& file)
    {
        cancel_point_.step();
        // A file can be selected and stand below a selected folder as well.
        if (!seen_.add(file))
            return;
        for (const ChecksumType type : types_)
            if (file.cached_checksum(type).empty())
                jobs_.push_back({&file, type});
    }

    void add_files_below(const MVItemFolder& folder)
    {
        // Depth first, children in their order; without recursion, as paths can be made of any number of components.
        std::vector<std::pair<ChildMap::const_iterator, ChildMap::const_iterator>> open{
            {folder.children().begin(), folder.children().end()}};
        while (!open.empty()) {
            auto& [next, end] = open.back();
            if (next == end) {
                open.pop_back();
                continue;
            }
            const MVItemBase& child = **next++;
            const MVItemFolder* subfolder = child.as_folder();
            if (!subfolder)
                add_file(child);
            else if (!subfolder->children().empty())
                open.emplace_back(subfolder->children().begin(), subfolder->children().end());
        }
    }

    std::vector<Job> take() { return std::move(jobs_); }

private:
    const std::set<ChecksumType>& types_;
    CancelPoint cancel_point_;
    SeenFiles seen_;
    std::vector<Job> jobs_;
};

std::vector<Job> jobs_for(std::span<const MVItemBase* const> items, const std::set<ChecksumType>& types,
                          bool uses_folder_data, ItemProgressSink& sink)
{
    JobList list(types, [&] { return sink.is_cancelled(); });
    for (const MVItemBase* item : items) {
        const MVItemFolder* folder = item->as_folder();
        if (!folder)
            list.add_file(*item);
        else if (uses_folder_data && folder->children_loaded())
            list.add_files_below(*folder);
    }
    return list.take();
}

void compute(const std::vector<Job>& jobs, ItemProgressSink& sink)
{
    const auto cancelled = [&] { return sink.is_cancelled(); };
    for_each_parallel(jobs.size(), cancelled, [&](std::size_t index, std::size_t) {
        const Job& job = jobs[index];
        const std::u16string path = job.file->full_path();
        sink.report_item(path);
        // Stored at once: doing it for a million files in the end would keep a cancelled run from ending.
        if (std::u16string text = file_checksum(path, job.type, cancelled); !text.empty())
            job.file->store_checksum(job.type, std::move(text));
    });
}

}

void precache_checksums(std::span<const MVItemBase* const> items, const std::set<ChecksumType>& types,
                        bool uses_folder_data, ItemProgressSink& sink)
{
    const std::vector<Job> jobs = jobs_for(items, types, uses_folder_data, sink);
    if (jobs.empty())
        return;
    sink.report_status(u"Computing checksums...");
    compute(jobs, sink);
}
