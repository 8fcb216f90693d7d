#pragma once

#include "platform/export.h"

#include <QObject>
#include <QString>

#include <functional>

class QDialog;

/// Modal windows run by the application: sessions form a stack, each with an event loop of its own
/// inside the call that runs it. The windows underneath go on repainting.
namespace platform {

/// How a session ended: Stopped by stopModal(); Abandoned because the window was destroyed or could
/// not be run, or because everything is closing. After an abandoned one a person is not asked
/// anything more.
enum class ModalEnd { Stopped, Abandoned };

/// Runs a window until stopModal() ends its session or the window is destroyed, then returns. The
/// caller must check that it still lives itself. A null window returns at once. A window that
/// already runs is refused with a warning.
PLATFORM_EXPORT ModalEnd runModalForWindow(QDialog *window);

/// Ends the innermost session that is still running; never one further out, and calling it twice
/// before the loop has returned ends only that one. Without a session it does nothing. The window
/// itself stays open: closing it is its owner's business.
PLATFORM_EXPORT void stopModal();

/// Ends every session, innermost first, for a dialog that closes or a program that quits.
PLATFORM_EXPORT void stopAllModalSessions();

/// Sessions whose runModalForWindow() has not returned yet, stopped ones included.
[[nodiscard]] PLATFORM_EXPORT int modalDepth();

/// Puts the window in the middle of the active window, else of the screen.
PLATFORM_EXPORT void centerWindow(QDialog *window);

/// Calls @p willClose whenever the window is about to close: by its close button, by Escape, by
/// closeWindow(), or by its owner's close(). A close that begins inside @p willClose for the same
/// window is not reported again. Ends with @p context.
PLATFORM_EXPORT void setWindowDelegate(QDialog *window, QObject *context,
                                       std::function<void(QDialog *)> willClose);

/// Closes a window, telling its delegate; null and hidden windows do nothing.
PLATFORM_EXPORT void closeWindow(QDialog *window);

/// Destroys a window that its owner no longer needs: at once, or, while modal sessions run and one
/// of its own events may be under way, as soon as control is back in an event loop. Null does
/// nothing.
PLATFORM_EXPORT void discardWindow(QDialog *window);

/// Tells watchers (replay, the dialog) when modal windows open and close.
class PLATFORM_EXPORT ModalSessions : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static ModalSessions &shared();

Q_SIGNALS:
    /// The window is on screen and its loop is about to run; depth counts from 1.
    void opened(QDialog *window, int depth);
    /// Its loop has ended; the window may be gone, so only its object name is given.
    void closed(const QString &objectName);

protected:
    /// A program that is asked to quit closes its windows first; their sessions are over before
    /// that.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend ModalEnd runModalForWindow(QDialog *);
    ModalSessions() = default;
};

} // namespace platform
