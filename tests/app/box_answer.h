#pragma once

#include <QStringList>
#include <QTimer>

#include <string>

/// Waits for the modal boxes and dialogs that the next calls open, keeps what they say and presses a button in each:
/// `buttons` in turn, the last one again and again. For "" the box is closed as by its frame. Dialogs that wait for
/// a text or a file go by themselves.
class BoxAnswer
{
public:
    explicit BoxAnswer(QStringList buttons);

    /// The titles, texts and buttons of the boxes that were answered, such as "Title|Text|Save, Cancel\n".
    const std::string& seen() const { return seen_; }

    /// How a box of the program's with that text and these buttons is seen.
    static std::string box(const std::string& text, const std::string& buttons)
    {
        return "Vellumark Configure|" + text + "|" + buttons + "\n";
    }

private:
    void answer();

    QStringList buttons_;
    QTimer timer_;
    std::string seen_;
};
