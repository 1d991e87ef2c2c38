#pragma once

#include "engine/commands/command_type.h"

#include <boost/json.hpp>

#include <memory>
#include <string>

/// A named entry of the menu list or the library list. Main thread only, but for the copy that a text run owns.
class MVCommandBase
{
public:
    virtual ~MVCommandBase() = default;

    virtual CommandType type() const = 0;

    /// All fields and the committed copy's pointer, but not `from_previous_session`.
    virtual std::shared_ptr<MVCommandBase> clone() const = 0;

    /// Takes over the contents, not the names, of a command of the same class; any other changes nothing.
    virtual void assign_from(const MVCommandBase& other) = 0;

    virtual boost::json::object to_json() const = 0;

    /// In the base: equal names.
    virtual bool equals(const MVCommandBase& other) const;

    /// Whether there is a committed copy whose contents differ from this command's; false in the base.
    virtual bool has_discardable_changes() const { return false; }

    const std::u16string& name() const { return name_; }

    void set_name(std::u16string name) { name_ = std::move(name); }

    /// The name for one selected item; empty means derived.
    const std::u16string& name1() const { return name1_; }

    void set_name1(std::u16string name) { name1_ = std::move(name); }

    /// `name`, or for one item `name1`, or what `name` gives without its plurals when that is empty.
    std::u16string display_name(bool one_item) const;

    bool show_in_menu() const { return show_in_menu_; }

    void set_show_in_menu(bool show) { show_in_menu_ = show; }

    /// True on a command that was taken from the last session's run and stands in no list. Never stored.
    bool from_previous_session() const { return from_previous_session_; }

    void set_from_previous_session(bool from) { from_previous_session_ = from; }

    /// True without a committed copy, and when names or contents differ from it.
    bool has_uncommitted_changes() const;
    /// A clone of the committed copy, committed as that copy; null without one.
    std::shared_ptr<MVCommandBase> committed_copy() const;

    void set_committed(std::shared_ptr<MVCommandBase> committed) { committed_ = std::move(committed); }

    /// Makes the command as it is its own committed copy.
    void commit();
    /// Takes the contents back from the committed copy, if there is one.
    void revert();

protected:
    MVCommandBase() = default;
    explicit MVCommandBase(std::u16string name);
    /// Throws std::runtime_error "Missing key in JSON: name".
    explicit MVCommandBase(const boost::json::object& json);
    MVCommandBase(const MVCommandBase&) = default;
    MVCommandBase& operator=(const MVCommandBase&) = default;

    /// "commandType" (none for an invalid type), "name", and "name1" unless it is empty.
    boost::json::object common_json() const;

    const MVCommandBase* committed() const { return committed_.get(); }

private:
    std::u16string name_;
    std::u16string name1_;
    bool show_in_menu_ = true;
    bool from_previous_session_ = false;
    std::shared_ptr<MVCommandBase> committed_;
};
