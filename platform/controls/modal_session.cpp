#include "platform/controls/modal_session.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLayout>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace platform {
namespace {

/// One call of runModalForWindow().
class Session
{
public:
    explicit Session(QDialog *window) : window_(window)
    {
        QObject::connect(window, &QObject::destroyed, &loop_, [this] { abandon(); });
    }

    void run()
    {
        // A loop that starts forgets an earlier request to quit.
        if (!stopped_)
            loop_.exec();
        // A program that quits ends every loop, and no new one would run.
        if (!stopped_)
            abandon();
    }

    void stop()
    {
        stopped_ = true;
        loop_.quit();
    }

    /// Also a session that was stopped and has not returned yet counts as abandoned from now on.
    void abandon()
    {
        end_ = ModalEnd::Abandoned;
        stop();
    }

    [[nodiscard]] ModalEnd end() const { return end_; }
    [[nodiscard]] bool isOf(const QDialog *window) const { return window_ == window; }

private:
    QPointer<QDialog> window_;
    QEventLoop loop_;
    bool stopped_ = false;
    ModalEnd end_ = ModalEnd::Stopped;
};

/// Innermost last.
std::vector<Session *> &sessions()
{
    static std::vector<Session *> stack;
    return stack;
}

bool isRunning(const QDialog *window)
{
    return std::any_of(sessions().begin(), sessions().end(),
                       [window](const Session *session) { return session->isOf(window); });
}

/// The modality of a visible window changes only when it is shown anew.
void showWithModality(QDialog *window, Qt::WindowModality modality)
{
    if (window->windowModality() != modality) {
        window->hide();
        window->setWindowModality(modality);
    }
    window->show();
}

/// Keeps the window above the one that a person was working in.
void attachToActiveWindow(QDialog *window)
{
    const QWidget *active = QApplication::activeWindow();
    window->winId(); // creates the window handle
    if (active && active != window && !window->windowHandle()->transientParent())
        window->windowHandle()->setTransientParent(active->windowHandle());
}

/// A window that its owner leaves open after its session blocks nothing any longer.
void endModality(QDialog *window, Qt::WindowModality former)
{
    if (window->isVisible())
        showWithModality(window, former);
    else
        window->setWindowModality(former);
}

/// The rectangle shifted so that at least its upper left part lies inside the screen.
QRect broughtInside(QRect frame, const QRect &screen)
{
    frame.moveRight(std::min(frame.right(), screen.right()));
    frame.moveBottom(std::min(frame.bottom(), screen.bottom()));
    frame.moveLeft(std::max(frame.left(), screen.left()));
    frame.moveTop(std::max(frame.top(), screen.top()));
    return frame;
}

/// Reports the closing of one window.
class WindowDelegate : public QObject
{
public:
    WindowDelegate(QDialog *window, QObject *context, std::function<void(QDialog *)> willClose)
        : QObject(window), window_(window), willClose_(std::move(willClose))
    {
        window->installEventFilter(this);
        connect(window, &QDialog::finished, this, &WindowDelegate::windowFinished);
        connect(context, &QObject::destroyed, this, [this] { willClose_ = nullptr; });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != window_)
            return false;
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
            window_->close();
            return true;
        }
        return event->type() == QEvent::Close && window_->isVisible() && !report();
    }

private:
    /// False when the window, and this delegate with it, is gone afterwards. A close that begins in
    /// here ends at once, since the window is closing or hidden already.
    bool report()
    {
        reported_ = true;
        const QPointer<QDialog> window = window_;
        const auto willClose = willClose_; // outlives this delegate
        if (willClose)
            willClose(window);
        return window;
    }

    /// accept() and reject() hide the window without a close event.
    void windowFinished()
    {
        if (!reported_ && !report())
            return;
        reported_ = false;
    }

    QDialog *window_;
    std::function<void(QDialog *)> willClose_;
    bool reported_ = false;
};

/// As large as its wrapped texts need, and no smaller from then on; without such texts, as large as
/// its contents, unless somebody has given it a size.
void fitTexts(QDialog *window)
{
    QLayout *layout = window->layout();
    if (layout && layout->hasHeightForWidth()) {
        // New texts inside a frame do not reach the layout of a hidden window by themselves.
        for (QWidget *part : window->findChildren<QWidget *>()) {
            part->ensurePolished();
            if (part->layout())
                part->layout()->invalidate();
            part->updateGeometry();
        }
        layout->invalidate();
        layout->activate();
        const int width = std::max(window->minimumWidth(), layout->totalSizeHint().width());
        window->setMinimumSize(width, layout->totalHeightForWidth(width));
        window->resize(window->minimumSize());
    } else if (!window->testAttribute(Qt::WA_Resized)) {
        window->adjustSize();
    }
}

} // namespace

ModalEnd runModalForWindow(QDialog *window)
{
    if (!window)
        return ModalEnd::Abandoned;
    if (isRunning(window)) {
        qWarning("window %s runs already", qUtf8Printable(window->objectName()));
        return ModalEnd::Abandoned;
    }
    const QPointer<QDialog> guard = window;
    const QString name = window->objectName();
    const Qt::WindowModality former = window->windowModality();
    qApp->installEventFilter(&ModalSessions::shared());
    Session session(window);
    sessions().push_back(&session);
    attachToActiveWindow(window);
    showWithModality(window, Qt::ApplicationModal);
    Q_EMIT ModalSessions::shared().opened(window, modalDepth());
    session.run();
    sessions().pop_back();
    if (guard)
        endModality(window, former);
    Q_EMIT ModalSessions::shared().closed(name);
    return session.end();
}

void stopModal()
{
    if (!sessions().empty())
        sessions().back()->stop();
}

void stopAllModalSessions()
{
    for (auto session = sessions().rbegin(); session != sessions().rend(); ++session)
        (*session)->abandon();
}

int modalDepth()
{
    return static_cast<int>(sessions().size());
}

void centerWindow(QDialog *window)
{
    if (!window)
        return;
    fitTexts(window);
    const QWidget *active = QApplication::activeWindow();
    const QRect middle = active && active != window ? active->frameGeometry()
                                                    : window->screen()->availableGeometry();
    QRect frame = window->frameGeometry();
    frame.moveCenter(middle.center());
    window->move(broughtInside(frame, window->screen()->availableGeometry()).topLeft());
}

void setWindowDelegate(QDialog *window, QObject *context, std::function<void(QDialog *)> willClose)
{
    if (window && context)
        new WindowDelegate(window, context, std::move(willClose)); // owned by the window
}

void closeWindow(QDialog *window)
{
    if (window && window->isVisible())
        window->close();
}

void discardWindow(QDialog *window)
{
    if (!window)
        return;
    if (modalDepth() == 0) {
        delete window;
        return;
    }
    for (Session *session : sessions()) {
        if (session->isOf(window))
            session->abandon();
    }
    window->hide();
    window->deleteLater();
}

bool ModalSessions::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::Quit)
        stopAllModalSessions();
    return false;
}

ModalSessions &ModalSessions::shared()
{
    static ModalSessions sessions;
    return sessions;
}

} // namespace platform
