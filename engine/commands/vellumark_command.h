#pragma once

#include "engine/commands/mv_command_base.h"
#include "engine/commands/show_rule.h"
#include "engine/commands/sort_order.h"
#include "engine/filters/item_filter.h"
#include "engine/parts/item_parts_list.h"

#include <memory>
#include <string>
#include <vector>

class ItemProgressSink;
class MVItemsSet;
struct TextRunContext;

/// The command that turns selected items into text.
class VellumarkCommand final : public MVCommandBase
{
public:
    using Sort = ::Sort;
    using ShowRule = ::ShowRule;
    using Items = std::vector<const MVItemBase*>;

    explicit VellumarkCommand(std::u16string name = {});
    /// Throws std::runtime_error "Missing key in JSON: " and the key for "name", "separator" or "fileParts", what
    /// the parts' readers throw, and the JSON library's error for a value of the wrong kind.
    explicit VellumarkCommand(const boost::json::object& json);
    VellumarkCommand(const VellumarkCommand& other);
    VellumarkCommand& operator=(const VellumarkCommand& other);

    CommandType type() const override { return CommandType::Vellumark; }

    std::shared_ptr<MVCommandBase> clone() const override;
    void assign_from(const MVCommandBase& other) override;
    /// Throws std::runtime_error for an enumeration value outside its table.
    boost::json::object to_json() const override;
    bool equals(const MVCommandBase& other) const override;
    bool has_discardable_changes() const override;

    /// A command's two templates.
    enum class Template : std::uint32_t {
        Files, ///< for folders as well, as long as they have none of their own
        Folders
    };

    /// Never null. Single parts are reached by their position in it, for their objects may be others after a step of
    /// undo.
    const std::shared_ptr<ItemPartsList>& parts(Template which) const;

    /// The command keeps the list itself, which isn't null, and no copy of it.
    void set_parts(Template which, std::shared_ptr<ItemPartsList> parts);

    const std::shared_ptr<ItemPartsList>& file_parts() const { return fields_.file_parts; }

    const std::shared_ptr<ItemPartsList>& folder_parts() const { return fields_.folder_parts; }

    const std::u16string& separator() const { return fields_.separator; }

    void set_separator(std::u16string text) { fields_.separator = std::move(text); }

    const std::u16string& start_text() const { return fields_.start_text; }

    void set_start_text(std::u16string text) { fields_.start_text = std::move(text); }

    const std::u16string& end_text() const { return fields_.end_text; }

    void set_end_text(std::u16string text) { fields_.end_text = std::move(text); }

    bool same_parts_for_folders() const { return fields_.same_parts_for_folders; }

    void set_same_parts_for_folders(bool same) { fields_.same_parts_for_folders = same; }

    bool no_start_end_text_if_one_item() const { return fields_.no_start_end_text_if_one_item; }

    void set_no_start_end_text_if_one_item(bool none) { fields_.no_start_end_text_if_one_item = none; }

    Sort sort_order() const { return fields_.sort_order; }

    void set_sort_order(Sort order) { fields_.sort_order = order; }

    bool add_files_from_folders() const { return fields_.add_files_from_folders; }

    void set_add_files_from_folders(bool add) { fields_.add_files_from_folders = add; }

    bool limit_folder_depth() const { return fields_.limit_folder_depth; }

    /// Turning the limit on raises a depth below 1 to 1.
    void set_limit_folder_depth(bool limit);

    std::int32_t max_folder_depth() const { return fields_.max_folder_depth; }

    void set_max_folder_depth(std::int32_t depth) { fields_.max_folder_depth = depth; }

    bool show_using_default_rules() const { return fields_.show_using_default_rules; }

    ShowRule show_rule() const { return fields_.show_rule; }

    void set_show(bool use_default, ShowRule rule);

    bool file_filter_enabled() const { return fields_.file_filter_enabled; }

    void set_file_filter_enabled(bool enabled) { fields_.file_filter_enabled = enabled; }

    /// The preset that the file filter follows; empty for none.
    const std::u16string& file_filter_preset_uuid() const { return fields_.file_filter_preset_uuid; }

    void set_file_filter_preset_uuid(std::u16string uuid) { fields_.file_filter_preset_uuid = std::move(uuid); }

    const ItemFilter& file_filter() const { return fields_.file_filter; }

    void set_file_filter(ItemFilter filter) { fields_.file_filter = std::move(filter); }

    bool folder_filter_enabled() const { return fields_.folder_filter_enabled; }

    void set_folder_filter_enabled(bool enabled) { fields_.folder_filter_enabled = enabled; }

    const ItemFilter& folder_filter() const { return fields_.folder_filter; }

    void set_folder_filter(ItemFilter filter) { fields_.folder_filter = std::move(filter); }

    /// The rule that stands in while the command shows by default rules: it follows from the template.
    ShowRule default_show_rule() const;

    /// Whether the selection is one that the command's rule asks for; its filters aren't looked at.
    bool show_rule_holds(const MVItemsSet& selection) const;

    /// Whether the menu shows the command: its rule holds, and an active filter leaves at least one item.
    bool is_shown_for(const MVItemsSet& selection) const;

    /// Whether an item passes the filter for its kind; an inactive filter lets everything pass.
    bool passes_filter(const MVItemBase& item) const;

    /// Makes the text of the selection. Folders are read and checksums computed on short pools of threads, which are
    /// joined before this returns, on every path. When `sink` cancels, what `text` then holds is of no use. Throws
    /// what goes wrong on any of the threads; parts contribute nothing for data that can't be had. One thread a
    /// command at a time; the selection must not change meanwhile.
    void generate_text(std::u16string& text, const MVItemsSet& selection, ItemProgressSink& sink) const;

    /// Runs the template for the item's kind. False when the sink cancelled.
    bool append_item(TextRunContext& context, const MVItemBase& item, int level) const;

private:
    /// All that `equals` compares beyond the names.
    struct Fields {
        std::shared_ptr<ItemPartsList> file_parts = std::make_shared<ItemPartsList>();
        std::shared_ptr<ItemPartsList> folder_parts = std::make_shared<ItemPartsList>();
        std::u16string separator;
        std::u16string start_text;
        std::u16string end_text;
        bool same_parts_for_folders = true;
        bool no_start_end_text_if_one_item = false;
        Sort sort_order = Sort::AsSelected;
        bool add_files_from_folders = false;
        bool limit_folder_depth = false;
        std::int32_t max_folder_depth = 1;
        bool show_using_default_rules = true;
        ShowRule show_rule = ShowRule::AtLeastOneItem;
        bool file_filter_enabled = false;
        std::u16string file_filter_preset_uuid;
        ItemFilter file_filter;
        bool folder_filter_enabled = false;
        ItemFilter folder_filter;

        Fields deep_copy() const;
        bool operator==(const Fields& other) const;
    };

    static Fields read_fields(const boost::json::object& json);
    bool file_filter_active() const;
    bool folder_filter_active() const;
    const ItemPartsList& parts_for(const MVItemBase& item) const;
    Items items_of(const MVItemsSet& selection, ItemProgressSink& sink) const;
    void build_item_list(Items& items, ItemProgressSink& sink) const;
    std::u16string text_of(const MVItemsSet& selection, ItemProgressSink& sink) const;
    void read_ahead(const Items& items, ItemProgressSink& sink) const;

    Fields fields_;
};
