#pragma once

#include "quality/threshold_formatter.h"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

/// What happens when a person edits a text field: a delegate hears of it and a formatter judges it.
///
/// An editing session lasts from the first edit until the field loses the focus or Return is
/// pressed. didBegin runs at that first edit, while the field still shows the text before it; then
/// the formatter judges the new text; then didChange runs with what the field ends up with, as it
/// does after every further edit. Texts set by the program count as no edit.
class TextFieldEditing : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void(QLineEdit *)>;

    /// The field's own one, made at the first call and destroyed with the field; null without
    /// field.
    [[nodiscard]] static TextFieldEditing *of(QLineEdit *field);

    /// Calls back for as long as @p delegate lives; replaces the former delegate.
    void setDelegate(QObject *delegate, Callback didBegin, Callback didChange);
    void setFormatter(std::unique_ptr<ThresholdFormatter> formatter);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit TextFieldEditing(QLineEdit *field);
    void edited(const QString &text);
    void begin(const QString &text);
    void judge(const QString &text);
    /// Takes a copy: a callback may replace the delegate that it belongs to.
    void tell(Callback callback);

    QLineEdit *field_; ///< the parent
    QPointer<QObject> delegate_;
    Callback didBegin_;
    Callback didChange_;
    std::unique_ptr<ThresholdFormatter> formatter_;
    QString textBefore_;
    bool isEditing_ = false;
};
