#include "dialog/window/sign_in_prompt.h"

#include "dialog/window/wrapped_label.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace dialog {
namespace {

QLineEdit *field(const char *name, const QString &label, QFormLayout *form)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(label);
    form->addRow(label, edit); // the label becomes its buddy
    return edit;
}

} // namespace

SignInPrompt::SignInPrompt(const SignInQuestion &question, const QString &queue, QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("signInPrompt"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    const QString text = wordsFor(question, queue);
    auto *words = new WrappedLabel(text, this);
    words->setObjectName(QStringLiteral("signInWords"));
    setAccessibleName(text);
    auto *form = new QFormLayout;
    user_ = field("signInUser", tr("Name:"), form);
    user_->setText(question.user);
    password_ = field("signInPassword", tr("Password:"), form);
    password_->setEchoMode(QLineEdit::Password);
    password_->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData);
    auto *column = new QVBoxLayout(this);
    column->addWidget(words);
    column->addLayout(form);
    column->addWidget(makeButtons());
}

SignInPrompt::~SignInPrompt()
{
    wipe();
}

QString SignInPrompt::wordsFor(const SignInQuestion &question, const QString &queue) const
{
    QStringList words;
    if (question.wasWrong)
        words.append(tr("The print server did not accept this name and password."));
    words.append(tr("The print server %1 wants a name and password before it prints to %2. They "
                    "are sent for this job and not kept.")
                     .arg(question.server, queue));
    if (question.isReadable)
        words.append(tr("The connection is not encrypted: others in the network could read the "
                        "password."));
    return words.join(u'\n');
}

QWidget *SignInPrompt::makeButtons()
{
    auto *buttons = new QWidget(this);
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->addStretch(1);
    auto *cancel = new QPushButton(tr("Cancel Job"), buttons);
    cancel->setObjectName(QStringLiteral("signInCancel"));
    cancel->setAutoDefault(false);
    auto *signIn = new QPushButton(tr("Sign In"), buttons);
    signIn->setObjectName(QStringLiteral("signInButton"));
    signIn->setAutoDefault(false);
    row->addWidget(cancel);
    row->addWidget(signIn);
    connect(cancel, &QPushButton::clicked, this, &SignInPrompt::cancelPressed);
    connect(signIn, &QPushButton::clicked, this, &SignInPrompt::signInPressed);
    return buttons;
}

void SignInPrompt::takeFocus()
{
    (user_->text().isEmpty() ? user_ : password_)->setFocus();
}

/// Return signs in, instead of pressing the window's Print.
void SignInPrompt::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT signInPressed();
    else if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelPressed();
    else
        QFrame::keyPressEvent(event);
}

std::unique_ptr<Credentials> SignInPrompt::takeCredentials()
{
    auto credentials = std::make_unique<Credentials>(user_->text(), password_->text().toUtf8());
    wipe();
    return credentials;
}

/// The field gives its text up, so that no other text shares the letters that are overwritten.
void SignInPrompt::wipe()
{
    QString typed = password_->text();
    password_->clear();
    typed.fill(u'\0');
}

} // namespace dialog
