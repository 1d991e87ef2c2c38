#include "ui/sections/section_combo.h"

#include "ui/widgets/field_manners.h"

#include <QComboBox>
#include <QListView>

QComboBox* make_section_combo(const QStringList& entries, const QString& name)
{
    auto* combo = new QComboBox;
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo->addItems(entries);
    combo->setAccessibleName(name);
    if (auto* list = qobject_cast<QListView*>(combo->view()))
        list->setSpacing(2);
    leave_wheel_to_page(*combo);
    return combo;
}
