#pragma once

#include "app/named_pipe_server.h"

#include <QObject>
#include <QStringList>

/// Receives selections from the file manager.
class MirvantaNamedPipeServer : public QObject, public NamedPipeServer
{
    Q_OBJECT

public:
    explicit MirvantaNamedPipeServer(QObject* parent = nullptr);

    std::string pipe_name() const override;
    void message_received(const std::vector<char>& message) override;
    void message_too_large(std::size_t size) override;

signals:
    /// From the pipe's thread. `command_index` is a row of the menu list, negative for none; `paths`, never empty,
    /// are in drive or server form.
    void context_menu_selected(int command_index, QStringList paths);
};
