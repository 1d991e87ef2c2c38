#include "app/mirvanta_named_pipe_server.h"

#include "app/selection_message.h"
#include "engine/items/selection_protocol.h"

#include <QDebug>

MirvantaNamedPipeServer::MirvantaNamedPipeServer(QObject* parent) : QObject(parent) {}

std::string MirvantaNamedPipeServer::pipe_name() const
{
    return std::string(selection_protocol::pipe_name);
}

void MirvantaNamedPipeServer::message_received(const std::vector<char>& message)
{
    qDebug() << "Message received";
    if (const auto selection = decode_selection_message(message))
        emit context_menu_selected(selection->command_index, selection->paths);
}

void MirvantaNamedPipeServer::message_too_large(std::size_t size)
{
    qDebug() << "Message received";
    log_too_large_message(size);
}
