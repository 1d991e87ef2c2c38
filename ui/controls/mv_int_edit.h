#pragma once

#include <QIntValidator>
#include <QLineEdit>

/// Refuses also those numbers beyond the maximum that have no more digits than it.
class StrictIntValidator final : public QIntValidator
{
public:
    using QIntValidator::QIntValidator;

    State validate(QString& text, int& position) const override;
};

/// A line for a whole number within bounds. What can't become such a number can't be typed. Main thread only.
class MVIntEdit final : public QLineEdit
{
    Q_OBJECT

public:
    MVIntEdit(int minimum, int maximum, QWidget* parent = nullptr);

signals:
    /// The user typed. 0 for a text that isn't a number yet. A text set by the program emits nothing.
    void number_changed(int number);

public slots:
    void text_changed(const QString& text);

private:
    StrictIntValidator validator_;
};
