#pragma once

#include <QApplication>
#include <QSet>
#include <QStringList>

/// The application object. An exception that leaves a slot or an event's handling ends there, and the user is told of
/// it in a box.
class Application final : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv) : QApplication(argc, argv) {}

    /// As QApplication's; false after an exception. Any thread.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void report(const QString& failure, bool is_answer);
    void tell(const QString& failure, bool is_answer);
    void show_boxes();

    QStringList waiting_; ///< the first one's box shows
    QSet<QString> told_;
};
