#pragma once

#include <QDesktopServices>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QUrl>

#include <string>

/// Takes the place of the desktop's browser while it lives.
class Browser
{
public:
    // Any signal with an address does where the toolkit wants a slot.
    Browser() { QDesktopServices::setUrlHandler("https", &teller_, "anchorClicked"); }

    ~Browser() { QDesktopServices::unsetUrlHandler("https"); }

    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    /// The only address that it was sent to; empty before.
    std::string opened() const { return told_.size() == 1 ? told_[0][0].toUrl().toString().toStdString() : ""; }

private:
    QTextBrowser teller_;
    const QSignalSpy told_{&teller_, &QTextBrowser::anchorClicked};
};
