#include "app/application.h"

#include "app/message_boxes.h"

#include <QDebug>
#include <QEvent>

#include <exception>
#include <stdexcept>

namespace {

/// What the user does and waits for an answer to.
bool is_users_step(QEvent::Type event)
{
    switch (event) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Shortcut:
    case QEvent::Close: return true;
    default: return false;
    }
}

}

bool Application::notify(QObject* receiver, QEvent* event)
{
    const bool is_answer = is_users_step(event->type());
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        report(QString::fromUtf8(failure.what()), is_answer);
    } catch (...) {
        report(tr("The reason is unknown."), is_answer);
    }
    return false;
}

void Application::report(const QString& failure, bool is_answer)
{
    qDebug() << "Exception in an event:" << failure;
    // Later: in the middle of painting, say, there can be no box.
    QMetaObject::invokeMethod(
        this, [=, this] { tell(failure, is_answer); }, Qt::QueuedConnection);
}

/// What fails without the user's doing, such as painting, fails again and again: that is told once.
void Application::tell(const QString& failure, bool is_answer)
{
    if (waiting_.contains(failure) || (told_.contains(failure) && !is_answer))
        return;
    told_.insert(failure);
    waiting_ += failure;
    if (waiting_.size() == 1)
        show_boxes();
}

void Application::show_boxes()
{
    while (!waiting_.isEmpty()) {
        MessageBoxes::show_failure(activeWindow(), tr("An unexpected error has occurred."),
                                   std::runtime_error(waiting_.front().toStdString()));
        waiting_.removeFirst();
    }
}
