#include "ui/controls/mv_int_edit.h"

QValidator::State StrictIntValidator::validate(QString& text, int& position) const
{
    const State state = QIntValidator::validate(text, position);
    return state == Intermediate && text.toLongLong() > top() ? Invalid : state;
}

MVIntEdit::MVIntEdit(int minimum, int maximum, QWidget* parent) : QLineEdit(parent), validator_(minimum, maximum)
{
    // Digits are read without the user's locale, so they can't be checked by it.
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator_.setLocale(locale);
    setValidator(&validator_);
    connect(this, &QLineEdit::textEdited, this, &MVIntEdit::text_changed);
}

void MVIntEdit::text_changed(const QString& text)
{
    // What is beyond the bounds, before the user came or on his way to a longer number, isn't written.
    QString checked = text;
    int position = 0;
    if (text.isEmpty() || validator_.validate(checked, position) == QValidator::Acceptable)
        emit number_changed(text.toInt());
}
