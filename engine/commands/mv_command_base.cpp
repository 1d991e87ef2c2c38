#include "engine/commands/mv_command_base.h"

#include "engine/commands/singular_name.h"
#include "engine/text/json_access.h"
#include "engine/text/utf.h"

MVCommandBase::MVCommandBase(std::u16string name) : name_(std::move(name)) {}

MVCommandBase::MVCommandBase(const boost::json::object& json)
    : name_(json_access::required_text(json, "name")), name1_(json_access::optional_text(json, "name1")),
      show_in_menu_(json_access::optional_bool(json, "showInMenu", true))
{}

boost::json::object MVCommandBase::common_json() const
{
    boost::json::object json;
    if (const auto* row = find_value(command_types, type()))
        json["commandType"] = row->json;
    json["name"] = to_utf8(name_);
    if (!name1_.empty())
        json["name1"] = to_utf8(name1_);
    return json;
}

bool MVCommandBase::equals(const MVCommandBase& other) const
{
    return name_ == other.name_ && name1_ == other.name1_;
}

std::u16string MVCommandBase::display_name(bool one_item) const
{
    if (!one_item)
        return name_;
    return name1_.empty() ? singular_name(name_) : name1_;
}

bool MVCommandBase::has_uncommitted_changes() const
{
    return !committed_ || !equals(*committed_) || !MVCommandBase::equals(*committed_);
}

std::shared_ptr<MVCommandBase> MVCommandBase::committed_copy() const
{
    if (!committed_)
        return nullptr;
    auto copy = committed_->clone();
    copy->set_committed(committed_);
    return copy;
}

void MVCommandBase::commit()
{
    auto copy = clone();
    // A committed copy needs none of its own: each would keep the one before it alive.
    copy->set_committed(nullptr);
    committed_ = std::move(copy);
}

void MVCommandBase::revert()
{
    if (committed_)
        assign_from(*committed_);
}
