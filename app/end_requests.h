#pragma once

class MirvantaApp;

/// Lets the window be left as by its Cancel when the process is asked to end from outside, and keep its state when
/// the session asks for that, which may yet go on. Nothing is asked. Once in a process; `window` has to outlive the
/// event loop.
void follow_end_requests(MirvantaApp& window);
