#include "app/selection_source.h"

#include <QDebug>

#include <exception>

SelectionSource::SelectionSource(QObject* parent) : QObject(parent)
{
    connect(&pipe_server_, &MirvantaNamedPipeServer::context_menu_selected, this, &SelectionSource::arrived);
    connect(&probe_, &PathProbe::answered, &intake_, &SelectionIntake::take);
    connect(&intake_, &SelectionIntake::selection_ready, this, &SelectionSource::ready);
}

void SelectionSource::start()
{
    try {
        pipe_server_.start();
    } catch (const std::exception& error) {
        qDebug() << "Selections can't be received:" << error.what();
    }
}

void SelectionSource::end()
{
    pipe_server_.end_delivery();
}

void SelectionSource::take(int command_index, const QStringList& paths)
{
    probe_.start(command_index, paths);
    intake_.expect();
}
