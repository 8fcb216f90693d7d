#include "quality/text_field_editing.h"

#include "platform/controls/controls.h"

#include <QEvent>

TextFieldEditing *TextFieldEditing::of(QLineEdit *field)
{
    if (!field)
        return nullptr;
    auto *editing = field->findChild<TextFieldEditing *>(QString(), Qt::FindDirectChildrenOnly);
    return editing ? editing : new TextFieldEditing(field);
}

TextFieldEditing::TextFieldEditing(QLineEdit *field)
    : QObject(field), field_(field), textBefore_(field->text())
{
    connect(field, &QLineEdit::textEdited, this, &TextFieldEditing::edited);
    connect(field, &QLineEdit::textChanged, this,
            [this](const QString &text) { textBefore_ = text; });
    connect(field, &QLineEdit::returnPressed, this, [this] { isEditing_ = false; });
    field->installEventFilter(this);
}

void TextFieldEditing::setDelegate(QObject *delegate, Callback didBegin, Callback didChange)
{
    delegate_ = delegate;
    didBegin_ = std::move(didBegin);
    didChange_ = std::move(didChange);
}

void TextFieldEditing::setFormatter(std::unique_ptr<ThresholdFormatter> formatter)
{
    formatter_ = std::move(formatter);
}

bool TextFieldEditing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        isEditing_ = false;
    return QObject::eventFilter(watched, event);
}

/// textEdited comes before textChanged, so that textBefore_ is still the text before this edit.
void TextFieldEditing::edited(const QString &text)
{
    const QString newText = text;
    if (!isEditing_)
        begin(newText);
    judge(newText);
    tell(didChange_);
}

void TextFieldEditing::begin(const QString &text)
{
    isEditing_ = true;
    const int cursor = field_->cursorPosition();
    controls::setStringValue(field_, textBefore_);
    tell(didBegin_);
    controls::setStringValue(field_, text);
    field_->setCursorPosition(cursor);
}

void TextFieldEditing::judge(const QString &text)
{
    QString replacement;
    if (formatter_ && !formatter_->isPartialStringValid(text, &replacement, nullptr))
        controls::setStringValue(field_, replacement);
}

void TextFieldEditing::tell(Callback callback)
{
    if (delegate_ && callback)
        callback(field_);
}
