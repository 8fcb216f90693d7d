#pragma once

#include <QFrame>
#include <QPointer>
#include <QStringList>

#include <vector>

class QButtonGroup;
class QPushButton;
class QVBoxLayout;

namespace dialog {

class WrappedLabel;

/// What a person is asked when a choice cannot stand beside others, in their language.
struct ConflictQuestion
{
    QString problem;  ///< which settings and choices cannot stand together
    QStringList ways; ///< what each way out changes, one line for each change
    QString advice;   ///< shown where there is no way
};

/// Stands in the window, between the settings and the buttons, until a person has picked one of the
/// ways out of a conflict or keeps what was set before. It blocks nothing.
///
/// The ways are radio buttons resolution0, resolution1, ...; Return makes the picked change, Escape
/// keeps. While it is open, Return in it does not print.
class ConflictSheet : public QFrame
{
    Q_OBJECT

public:
    explicit ConflictSheet(QWidget *parent = nullptr);

    /// Opens, in the place of an earlier question, and takes the keyboard focus unless a person is
    /// typing.
    void ask(const ConflictQuestion &question);
    /// Closes without an answer.
    void withdraw();
    [[nodiscard]] bool isAsking() const { return isAsking_; }
    /// What is asked, for tests and reports; empty while nothing is.
    [[nodiscard]] const ConflictQuestion &question() const { return question_; }

Q_SIGNALS:
    /// The sheet has closed by then.
    void wayPicked(int index);
    void kept();
    void heightChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QWidget *makeButtons();
    void fillWays(const QStringList &ways);
    void orderFocus();
    void takeFocus();
    void close();
    void apply();
    void keep();

    WrappedLabel *problem_;
    WrappedLabel *advice_;
    QWidget *ways_ = nullptr; ///< new for each question
    QButtonGroup *radios_ = nullptr;
    QVBoxLayout *column_;
    QPushButton *keep_ = nullptr;
    QPushButton *apply_ = nullptr;
    ConflictQuestion question_;
    QPointer<QWidget> formerFocus_;
    bool isAsking_ = false;
};

} // namespace dialog
