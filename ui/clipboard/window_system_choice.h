#pragma once

/// Lets the program's windows be such that texts can be copied from them, unless the user has chosen others
/// ($QT_QPA_PLATFORM). To be made before the application object, and forgotten once that is there: what the choice
/// stands in is handed down to other programs.
class WindowSystemChoice
{
public:
    WindowSystemChoice();
    void forget() const;

private:
    const bool is_made_;
};
