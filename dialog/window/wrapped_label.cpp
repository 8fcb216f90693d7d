#include "dialog/window/wrapped_label.h"

#include <QGuiApplication>
#include <QTextBoundaryFinder>

namespace dialog {
namespace {

constexpr QChar kBreak(0x200b);
// Characters; a line of the narrowest window takes more, in a large font, too.
constexpr int kLongestPiece = 24;

bool endsPart(QChar character)
{
    return QStringView(u"/\\_-.:=").contains(character);
}

bool continuesLetter(QChar character)
{
    return character.isLowSurrogate() || character.isMark();
}

/// Behind the parts of a name, and anywhere in a part that is too long itself.
QString pieceWithBreaks(QStringView piece)
{
    if (piece.size() <= kLongestPiece)
        return piece.toString();
    QString broken;
    int length = 0;
    for (const QChar character : piece) {
        if (length >= kLongestPiece && !continuesLetter(character))
            broken += kBreak;
        broken += character;
        ++length;
        if (endsPart(character)) {
            broken += kBreak;
            length = 0;
        }
    }
    return broken;
}

} // namespace

QString withBreaks(const QString &text)
{
    QString broken;
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, text);
    qsizetype from = 0;
    for (qsizetype to = lines.toNextBoundary(); to >= 0; to = lines.toNextBoundary()) {
        broken += pieceWithBreaks(QStringView(text).sliced(from, to - from));
        from = to;
    }
    return broken;
}

WrappedLabel::WrappedLabel(const QString &text, QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setWords(text);
    connect(QGuiApplication::clipboard(), &QClipboard::changed, this,
            &WrappedLabel::copyWithoutBreaks);
}

void WrappedLabel::setWords(const QString &text)
{
    setText(withBreaks(text));
    setAccessibleName(text);
}

/// Keys, menu and mouse lead to the clipboard inside the label; this comes behind all of them.
void WrappedLabel::copyWithoutBreaks(QClipboard::Mode mode) const
{
    const QString selected = selectedText().replace(QChar::ParagraphSeparator, u'\n');
    QClipboard &clipboard = *QGuiApplication::clipboard();
    if (selected.contains(kBreak) && clipboard.text(mode) == selected)
        clipboard.setText(QString(selected).remove(kBreak), mode);
}

} // namespace dialog
