#include "engine/items/mv_item_base.h"

#include "engine/items/mv_item_file.h"
#include "engine/items/mv_item_folder.h"
#include "engine/properties/item_property_reader.h"

#include <functional>
#include <map>
#include <mutex>

struct MVItemBase::Extras {
    std::mutex mutex; ///< held for accesses to the caches alone, never while a file is read
    std::map<std::u16string, std::u16string, std::less<>> properties;
    std::map<ChecksumType, std::u16string> checksums;
    std::vector<std::u16string> selector_parts;
    std::vector<std::shared_ptr<MVItemBase>> replaced_children;
};

MVItemBase::MVItemBase(MVItemInfo info, const MVItemFolder* parent) : info_(std::move(info)), parent_(parent) {}

MVItemBase::~MVItemBase()
{
    delete extras_.load(std::memory_order_acquire);
}

MVItemBase::Extras& MVItemBase::extras() const
{
    Extras* current = extras_.load(std::memory_order_acquire);
    if (current)
        return *current;
    auto made = std::make_unique<Extras>();
    if (extras_.compare_exchange_strong(current, made.get(), std::memory_order_acq_rel))
        return *made.release();
    return *current;
}

void MVItemBase::take_times_and_size(const MVItemInfo& info)
{
    info_.modified = info.modified;
    info_.created = info.created;
    info_.accessed = info.accessed;
    info_.size = info.size;
}

void MVItemBase::keep(std::shared_ptr<MVItemBase> replaced) const
{
    extras().replaced_children.push_back(std::move(replaced));
}

std::u16string_view MVItemBase::root_name() const
{
    const MVItemBase* node = this;
    while (node->parent_ && node->parent_->parent())
        node = node->parent_;
    return node->parent_ ? std::u16string_view(node->name()) : std::u16string_view();
}

std::u16string_view MVItemBase::drive_letter() const
{
    const std::u16string_view name = root_name();
    return name.size() >= 2 && name[1] == u':' ? name.substr(0, 1) : std::u16string_view();
}

std::u16string MVItemBase::selector_part(std::int32_t index) const
{
    const Extras* extras = extras_.load(std::memory_order_acquire);
    if (!extras || index < 0 || static_cast<std::size_t>(index) >= extras->selector_parts.size())
        return {};
    return extras->selector_parts[static_cast<std::size_t>(index)];
}

void MVItemBase::set_selector_parts(std::vector<std::u16string> parts)
{
    extras().selector_parts = std::move(parts);
}

std::u16string MVItemBase::property_value(std::u16string_view name) const
{
    Extras& current = extras();
    {
        const std::lock_guard lock(current.mutex);
        if (const auto found = current.properties.find(name); found != current.properties.end())
            return found->second;
    }
    const std::u16string own_name(name);
    ItemPropertyReader reader(full_path());
    reader.load_display_values({&own_name, 1});
    const std::lock_guard lock(current.mutex);
    return current.properties.emplace(own_name, reader.display_value(name)).first->second;
}

std::u16string MVItemBase::cached_checksum(ChecksumType type) const
{
    Extras* current = extras_.load(std::memory_order_acquire);
    if (!current)
        return {};
    const std::lock_guard lock(current->mutex);
    const auto found = current->checksums.find(type);
    return found == current->checksums.end() ? std::u16string() : found->second;
}

void MVItemBase::store_checksum(ChecksumType type, std::u16string text) const
{
    Extras& current = extras();
    const std::lock_guard lock(current.mutex);
    current.checksums[type] = std::move(text);
}

std::shared_ptr<MVItemBase> make_item(MVItemInfo info, const MVItemFolder* parent)
{
    if (info.is_folder)
        return std::make_shared<MVItemFolder>(std::move(info), parent);
    return std::make_shared<MVItemFile>(std::move(info), parent);
}
