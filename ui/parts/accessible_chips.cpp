#include "ui/parts/accessible_chips.h"

#include "ui/parts/item_parts_widget.h"

#include <QAccessibleObject>
#include <QAccessibleWidget>

#include <algorithm>

namespace {

QAccessibleInterface* interface_of(const ChipPointer& chip)
{
    return chip ? QAccessible::queryAccessibleInterface(chip.get()) : nullptr;
}

class AccessibleChip final : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleChip(ItemPartBaseDraw& chip) : QAccessibleObject(&chip), chip_(chip) {}

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(chip_.host()); }

    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return {};
        return chip_.is_palette() ? ItemPartsWidget::tr("Add %1").arg(chip_.spoken_name()) : chip_.spoken_name();
    }

    QAccessible::Role role() const override
    {
        return chip_.is_palette() ? QAccessible::Button : QAccessible::ListItem;
    }

    QRect rect() const override
    {
        const ItemPartsWidget* widget = host();
        if (!widget)
            return {};
        const QRect shown = widget->shown_rect(chip_.motion().goal()).toAlignedRect();
        return {widget->mapToGlobal(shown.topLeft()), shown.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const ItemPartsWidget* widget = host();
        state.focusable = true;
        state.selectable = !chip_.is_palette();
        state.invisible = !widget || !widget->isVisible();
        state.selected = widget && widget->board().selected_chip().get() == &chip_;
        state.focused = widget && widget->hasFocus() && widget->current_chip().get() == &chip_;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override
    {
        return chip_.is_palette() ? QStringList{pressAction(), add_action()}
                                  : QStringList{pressAction(), delete_action()};
    }

    void doAction(const QString& action) override
    {
        ItemPartsWidget* widget = host();
        if (!widget || !actionNames().contains(action))
            return;
        if (action == delete_action())
            widget->remove(chip_);
        else
            widget->activate(chip_);
    }

    QString localizedActionName(const QString& action) const override
    {
        if (action == add_action())
            return ItemPartsWidget::tr("Add");
        return action == delete_action() ? ItemPartsWidget::tr("Delete")
                                         : QAccessibleActionInterface::localizedActionName(action);
    }

    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    static QString add_action() { return QStringLiteral("Add"); }

    static QString delete_action() { return QStringLiteral("Delete"); }

    ItemPartsWidget* host() const { return qobject_cast<ItemPartsWidget*>(chip_.host()); }

    ItemPartBaseDraw& chip_;
};

/// The chips of the palette, then those of the row.
class AccessiblePartsWidget final : public QAccessibleWidget
{
public:
    explicit AccessiblePartsWidget(ItemPartsWidget& widget)
        : QAccessibleWidget(&widget, QAccessible::List), widget_(widget)
    {}

    int childCount() const override
    {
        return static_cast<int>(widget_.board().palette().size() + widget_.board().row().size());
    }

    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto place = static_cast<std::size_t>(index);
        const Chips& palette = widget_.board().palette();
        return interface_of(place < palette.size() ? palette[place] : widget_.board().row()[place - palette.size()]);
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int index = 0; index < childCount(); ++index)
            if (this->child(index) == child)
                return index;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        for (int index = 0; index < childCount(); ++index)
            if (QAccessibleInterface* chip = child(index); chip->rect().contains(x, y))
                return chip;
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override
    {
        return widget_.hasFocus() ? interface_of(widget_.current_chip()) : nullptr;
    }

private:
    ItemPartsWidget& widget_;
};

QAccessibleInterface* make_interface(const QString& /*class_name*/, QObject* object)
{
    if (auto* widget = qobject_cast<ItemPartsWidget*>(object))
        return new AccessiblePartsWidget(*widget);
    if (auto* chip = qobject_cast<ItemPartBaseDraw*>(object))
        return new AccessibleChip(*chip);
    return nullptr;
}

void tell(QObject* subject, QAccessible::Event what)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(subject, what);
    QAccessible::updateAccessibility(&event);
}

}

void install_accessible_chips()
{
    QAccessible::installFactory(make_interface);
}

void announce_row(ItemPartsWidget& widget)
{
    tell(&widget, QAccessible::ObjectReorder);
}

void announce_name(ItemPartBaseDraw& chip)
{
    tell(&chip, QAccessible::NameChanged);
}

void announce_selection(const ChipPointer& before, const ChipPointer& now)
{
    if (before == now)
        return;
    if (before)
        tell(before.get(), QAccessible::SelectionRemove);
    if (now)
        tell(now.get(), QAccessible::SelectionAdd);
}

void announce_focus(ItemPartsWidget& widget)
{
    if (const ChipPointer chip = widget.current_chip())
        tell(chip.get(), QAccessible::Focus);
}
