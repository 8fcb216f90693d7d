#pragma once

#include <QClipboard>
#include <QLabel>

namespace dialog {

/// The text with zero width spaces where a piece that is too long for a line may break; lines break
/// elsewhere as they always do.
[[nodiscard]] QString withBreaks(const QString &text);

/// A label with any text, shown literally in as many lines as it takes, however long its words are.
/// What a screen reader says, and what a person selects and copies, is the text itself.
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(const QString &text, QWidget *parent = nullptr);

    void setWords(const QString &text);

private:
    void copyWithoutBreaks(QClipboard::Mode mode) const;
};

} // namespace dialog
