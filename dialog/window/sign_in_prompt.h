#pragma once

#include "dialog/printers/sign_in.h"

#include <QFrame>

class QLineEdit;

namespace dialog {

/// A row of the window that asks for the name and password that a print server wants. What is typed
/// leaves it once, and is kept nowhere.
class SignInPrompt : public QFrame
{
    Q_OBJECT

public:
    SignInPrompt(const SignInQuestion &question, const QString &queue, QWidget *parent = nullptr);
    ~SignInPrompt() override;

    /// Puts the cursor where something is missing.
    void takeFocus();
    /// Forgets what was typed.
    [[nodiscard]] std::unique_ptr<Credentials> takeCredentials();

Q_SIGNALS:
    void signInPressed();
    void cancelPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QString wordsFor(const SignInQuestion &question, const QString &queue) const;
    [[nodiscard]] QWidget *makeButtons();
    void wipe();

    QLineEdit *user_;
    QLineEdit *password_;
};

} // namespace dialog
