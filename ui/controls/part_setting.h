#pragma once

#include "ui/undo/merge_ids.h"

#include <QString>

#include <type_traits>

/// A setting of a part, and how a control of a widget changes it: what stands in a row of the widget's table behind
/// the control itself.
template <typename PartClass, typename Got, typename Taken, typename Widget>
struct PartSetting {
    using Part = PartClass;
    using Value = std::remove_cvref_t<Taken>;

    QString text; ///< of the step of undo
    MergeId merge_id;
    Got (PartClass::*get)() const;
    void (PartClass::*set)(Taken);
    void (Widget::*changed)(); ///< the widget's signal, which tells that the user's change is made
};

template <typename PartClass, typename Got, typename Taken, typename Widget>
PartSetting(QString, MergeId, Got (PartClass::*)() const, void (PartClass::*)(Taken), void (Widget::*)())
    -> PartSetting<PartClass, Got, Taken, Widget>;
