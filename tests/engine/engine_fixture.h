#pragma once

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/item_progress_sink.h"
#include "engine/text/utf.h"
#include "support/temp_folder.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

/// Records what it is told and cancels when `stop` says so.
class RecordingSink final : public ItemProgressSink
{
public:
    bool is_cancelled() override
    {
        ++questions;
        return stop && stop();
    }

    void report_item(std::u16string_view text) override
    {
        const std::lock_guard lock(mutex);
        items.push_back(to_utf8(text));
    }

    void report_status(std::u16string_view text) override
    {
        const std::lock_guard lock(mutex);
        statuses.push_back(to_utf8(text));
    }

    std::function<bool()> stop;
    std::atomic<int> questions = 0;
    std::mutex mutex;
    std::vector<std::string> items, statuses;
};

/// The selected items as the walks take them.
inline std::vector<const MVItemBase*> items_of(const MVItemsSet& set)
{
    std::vector<const MVItemBase*> items;
    for (const auto& item : set.items())
        items.push_back(item.get());
    return items;
}

/// A command from JSON with single quotes for double ones; keys that it must have and doesn't are filled in.
inline VellumarkCommand make_command(std::string json)
{
    for (char& c : json)
        if (c == '\'')
            c = '"';
    boost::json::object object = boost::json::parse(json).as_object();
    object.insert({{"name", "test"},
                   {"separator", "\n"},
                   {"fileParts", boost::json::array{{{"item-type", "name"}, {"name-type", "full-name"}}}}});
    return VellumarkCommand(object);
}

inline std::string generated(const VellumarkCommand& command, const MVItemsSet& set, ItemProgressSink& sink)
{
    std::u16string text;
    command.generate_text(text, set, sink);
    return to_utf8(text);
}

inline std::string generated(const VellumarkCommand& command, const MVItemsSet& set)
{
    RecordingSink sink;
    return generated(command, set, sink);
}

/// The text of a command for entries of a folder.
inline std::string text_of(const std::string& json, const TempFolder& folder, const std::vector<std::string>& names)
{
    MVItemsSet set;
    for (const std::string& name : names)
        set.add_path(folder.path(name));
    return generated(make_command(json), set);
}
