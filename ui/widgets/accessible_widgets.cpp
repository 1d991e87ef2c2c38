#include "ui/widgets/accessible_widgets.h"

#include "ui/widgets/disclosure_control.h"
#include "ui/widgets/header_label.h"

#include <QAccessibleWidget>

namespace {

class AccessibleDisclosure final : public QAccessibleWidget
{
public:
    explicit AccessibleDisclosure(DisclosureControl& control)
        : QAccessibleWidget(&control, QAccessible::Button), control_(control)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = control_.expanded();
        state.collapsed = !control_.expanded();
        return state;
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    void doAction(const QString& action) override
    {
        if (action == pressAction())
            control_.activate();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    DisclosureControl& control_;
};

QAccessibleInterface* make_interface(const QString& /*class_name*/, QObject* object)
{
    if (auto* control = dynamic_cast<DisclosureControl*>(object))
        return new AccessibleDisclosure(*control);
    if (auto* header = dynamic_cast<HeaderLabel*>(object))
        return new QAccessibleWidget(header, QAccessible::Heading);
    return nullptr;
}

}

void install_accessible_widgets()
{
    QAccessible::installFactory(make_interface);
}

void announce_expanded(DisclosureControl& control)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(&control, changed);
    QAccessible::updateAccessibility(&event);
}
