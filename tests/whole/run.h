#pragma once

#include "tests/support/console_capture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/driver_root.h"

#include <QDialog>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>

class KorConflictController2;

namespace test {

/// What the run saw, by where it appeared. Texts of windows are those of a conflict window or its
/// instructions; titles those of panels and windows.
enum class Channel { Console, Info, Error, Window, Title, Label, Kind, Notification };

/// Every operation of the system, used in one process with the log on, in scenes: lives of all the
/// fixture printers with a person's hands, changes made elsewhere, conflict windows, old hosts, and
/// direct calls of what nothing else calls.
class SystemRun
{
public:
    SystemRun();
    ~SystemRun();

    /// Plays every scene.
    void play();

    /// Of every operation seen: its selector, and the scene in which it was seen first.
    [[nodiscard]] const QMap<QString, QString> &sceneOf() const { return sceneOf_; }
    /// Operations that traced.
    [[nodiscard]] const QSet<QString> &traced() const { return traced_; }
    /// All entry and exit traces, in order.
    [[nodiscard]] const QStringList &traces() const { return traces_; }
    /// Texts in the order of their first appearance, without repetition.
    [[nodiscard]] QStringList texts(Channel channel) const { return texts_.value(channel); }

private:
    void scene(const char *name, const std::function<void()> &play);
    void takeRecords();
    void note(Channel channel, const QString &text);
    void noteWindow(const QDialog *window);
    void noteLabel(const QWidget *view, const char *outlet);

    /// Operations that leave no trace: what is called, by the selectors that it stands for.
    void did(const char *selector);

    void playFactory();
    void playLives();
    void playLanguages();
    void playElsewhere();
    void playHelp();
    void playConflicts();
    void playConflictTexts();
    void pressEverythingInMsgTwo(KorConflictController2 &controller);
    void playOldHost();
    void playModel();
    void playQueries();
    void playAccessors();
    void playFormatter();
    void playLog();

    QObject observer_;
    DebugLog log_;
    ConsoleCapture console_;
    qsizetype recordsTaken_ = 0;
    QString scene_;
    QMap<QString, QString> sceneOf_;
    QSet<QString> traced_;
    QStringList traces_;
    QMap<Channel, QStringList> texts_;
};

} // namespace test
