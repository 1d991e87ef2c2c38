#pragma once

/// Something that works for what it shows, and need not while another page covers it. Main thread only.
class Suspendable
{
public:
    /// Stops the work in progress and begins none until `resume`. Nobody is to wait for its outcome.
    virtual void suspend() = 0;

    /// Takes the work up again, with all that changed meanwhile. Also after no `suspend`.
    virtual void resume() = 0;

protected:
    ~Suspendable() = default;
};
