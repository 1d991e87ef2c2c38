#include "app/end_requests.h"

#include "app/mirvanta_app.h"
#include "platform/end_requests.h"

#include <QDebug>
#include <QGuiApplication>
#include <QSocketNotifier>

void follow_end_requests(MirvantaApp& window)
{
    for (const auto signal : {&QGuiApplication::commitDataRequest, &QGuiApplication::saveStateRequest})
        QObject::connect(qGuiApp, signal, &window, &MirvantaApp::keep_state, Qt::DirectConnection);
    const int requests = platform::watch_end_requests();
    if (requests < 0) {
        qDebug() << "Nothing tells that the program shall end";
        return;
    }
    auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &window);
    QObject::connect(notifier, &QSocketNotifier::activated, &window, [&window, notifier] {
        // The first one is followed whatever comes behind it.
        notifier->setEnabled(false);
        window.reject();
    });
}
