#pragma once

#include <functional>

#include <QString>

class QObject;

namespace corvane {

class Browser;

/// Prepares the process for the browser; to be called before the application object is made. The
/// browser's engine refuses to start for the superuser unless its sandbox is off.
void PrepareBrowser();

/// Brings the browser into the process ahead of the first page, unless that is under way: its
/// libraries in a thread of its own, then its engine whenever the person pauses. To be called when
/// a page is likely to be asked for.
void WarmBrowser();

/// The browser, or null and the reason why there is none.
using BrowserUse = std::function<void(Browser* browser, const QString& reason)>;

/// Hands out the browser: at once, or as soon as its libraries are loaded. Not when the context is
/// gone by then.
void WithBrowser(QObject* context, BrowserUse use);

}  // namespace corvane
