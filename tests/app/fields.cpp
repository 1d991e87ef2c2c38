#include "fields.h"

#include "ui/sections/undo_command_changes.h"

#include <algorithm>
#include <array>

namespace {

using Command = VellumarkCommand;

constexpr std::array<std::u16string_view, 3> patterns{u"", u"*.j?g", u"(a"};
/// In the order of their rows.
constexpr std::array rules{ShowRule::AtLeastOneItem,   ShowRule::AtLeastOneFile, ShowRule::AtLeastOneFolder,
                           ShowRule::AtLeastOneLink,   ShowRule::ExactlyOneItem, ShowRule::ExactlyOneFile,
                           ShowRule::ExactlyOneFolder, ShowRule::ExactlyOneLink, ShowRule::MoreThanOneItem};

int row_of(const auto& rows, const auto& value)
{
    return static_cast<int>(std::ranges::find(rows, value) - rows.begin());
}

template <typename Control>
int value_of(const Control& control)
{
    if constexpr (requires { control.currentIndex(); })
        return control.currentIndex();
    else if constexpr (requires { control.value(); })
        return control.value();
    else if constexpr (requires { control.isChecked(); })
        return control.isChecked();
    else if constexpr (requires { control.stored_text(); })
        return static_cast<int>(control.stored_text().size());
    else
        return row_of(patterns, units_of(control.text()));
}

template <typename Control>
void put(Control& control, int value)
{
    control.setFocus();
    if constexpr (requires { control.currentIndex(); })
        control.setCurrentIndex(value % control.count());
    else if constexpr (requires { control.value(); })
        control.setValue(value);
    else if constexpr (requires { control.isChecked(); })
        control.click();
    else if constexpr (requires { control.stored_text(); })
        QTest::keyClick(&control, Qt::Key_Tab);
    else
        control.setText(to_qstring(patterns[static_cast<std::size_t>(value) % patterns.size()]));
    // It ends a pattern, and has to join the key before it in a text.
    if constexpr (requires { control.paste(); })
        QTest::keyClick(&control, Qt::Key_Return);
}

}

template <typename Control>
Field Fields::field(const char* section, const char* name, const char* step,
                    const std::function<int(const Command&)>& get,
                    const std::function<void(Command&, int)>& set) const
{
    const auto usable = [=, this]() -> Control* {
        auto& found = control<Control>(section, name);
        return found.isVisibleTo(app.get()) && found.isEnabled() ? &found : nullptr;
    };
    const auto edit = [=](int value) -> std::optional<int> {
        Control* const found = usable();
        const int before = found ? value_of(*found) : 0;
        if (found)
            put(*found, value);
        return found && value_of(*found) != before ? std::optional(value_of(*found)) : std::nullopt;
    };
    return {step, edit, set, [=](const Command& model) { return !usable() || value_of(*usable()) == get(model); },
            std::is_same_v<Control, VariableSizeTextEdit>};
}

std::vector<Field> Fields::fields() const
{
    const char* const file_text = "Files To Text";
    const char* const folders = "Folders To Text";
    const char* const texts = "Additional Text";
    const char* const menu = "Context Menu Options";
    const char* const depth = "Limit Folder Scan Depth: ";
    const auto take = [this](Command& model, int) {
        command_fields::set_file_filter(model, command_fields::file_filter(command()));
        command_fields::set_folder_filter(model, command_fields::folder_filter(command()));
    };
    const auto preset = [this](const Command& model) {
        std::vector<std::u16string> uuids;
        for (const ExtensionsPreset& each : app->presets().working())
            uuids.push_back(each.uuid);
        return row_of(uuids, model.file_filter_preset_uuid());
    };
    const auto type = [](const command_fields::FilterFields& fields, int first) {
        return fields.is_enabled ? static_cast<int>(fields.filter.filter_mode()) + first : 0;
    };
    return {
        field<QComboBox>(
            file_text, "Filter type", "Change Filter Type",
            [=](const Command& model) { return type(command_fields::file_filter(model), 1); }, take),
        field<QLineEdit>(
            file_text, "Pattern:", "Change Filter Pattern",
            [](const Command& model) { return row_of(patterns, model.file_filter().filter_pattern()); }, take),
        field<QRadioButton>(
            file_text, "Exclude matching files", "Change Filter Action",
            [](const Command& model) { return static_cast<int>(model.file_filter().filter_action()); }, take),
        field<QComboBox>(file_text, "Preset:", "Change Filter Preset", preset, take),
        field<QComboBox>(
            folders, "Filter type", "Change Filter Type",
            [=](const Command& model) { return type(command_fields::folder_filter(model), 0); }, take),
        field<QCheckBox>(folders, "Add Files From Folders", "Change Add Files From Folders",
                         &Command::add_files_from_folders, &Command::set_add_files_from_folders),
        field<QCheckBox>(folders, depth, "Change Limit Folder Depth", &Command::limit_folder_depth,
                         &Command::set_limit_folder_depth),
        field<QSpinBox>(
            folders, depth, "Change Maximum Folder Depth",
            [](const Command& model) { return std::clamp(model.max_folder_depth(), 1, 99); },
            [](Command& model, int value) { model.set_max_folder_depth(std::clamp(value, 1, 99)); }),
        field<VariableSizeTextEdit>(
            "Items Separator", "Items Separator", "Change Separator Text",
            [](const Command& model) { return static_cast<int>(model.separator().size()); },
            [](Command& model, int) { model.set_separator(model.separator() + u"\t\n"); }),
        field<VariableSizeTextEdit>(
            texts, "At Start:", "Change Start Text",
            [](const Command& model) { return static_cast<int>(model.start_text().size()); },
            [](Command& model, int) { model.set_start_text(model.start_text() + u"\t\n"); }),
        field<VariableSizeTextEdit>(
            texts, "At End:", "Change End Text",
            [](const Command& model) { return static_cast<int>(model.end_text().size()); },
            [](Command& model, int) { model.set_end_text(model.end_text() + u"\t\n"); }),
        field<QCheckBox>(texts, "Don't Add If Only One Item Selected",
                         "Change State of \"Don't add start & end text if only one item selected\" Flag",
                         &Command::no_start_end_text_if_one_item, &Command::set_no_start_end_text_if_one_item),
        field<QComboBox>(
            "Sort Options", "Sort Options", "Change Sort Order",
            [](const Command& model) { return static_cast<int>(model.sort_order()); },
            [](Command& model, int row) { model.set_sort_order(static_cast<Sort>(row)); }),
        // What was shown stays: the default rule when it stops to be followed.
        field<QCheckBox>(menu, "Use Default Rules for Command Settings", "Change Show Using Default Rules",
                         &Command::show_using_default_rules,
                         [](Command& model, int is_on) { model.set_show(is_on != 0, model.default_show_rule()); }),
        field<QComboBox>(
            menu, "Select when this command is shown in the context menu:", "Change Show Rule",
            [](const Command& model) { return row_of(rules, model.show_rule()); },
            [](Command& model, int row) { model.set_show(false, rules[static_cast<std::size_t>(row)]); }),
        field<QCheckBox>(folders, "Same As Files", "Change Folders Same As Files", &Command::same_parts_for_folders,
                         &Command::set_same_parts_for_folders),
    };
}
