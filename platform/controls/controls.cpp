#include "platform/controls/controls.h"

#include "platform/strings.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

/// Text for a control that reads "&" as a mark of its keyboard shortcut.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The text that such a control shows: "&&" is "&", a lone "&" only marks the shortcut.
QString unescaped(const QString &text)
{
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        shown += text[i];
    }
    return shown;
}

/// An existing control has a text, if only an empty one.
QString notNull(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

/// Unchecks a button that an exclusive group would keep checked.
void uncheck(QAbstractButton *button)
{
    QButtonGroup *group = button->group();
    const bool exclusiveGroup = group && group->exclusive();
    const bool autoExclusive = button->autoExclusive();
    if (exclusiveGroup)
        group->setExclusive(false);
    button->setAutoExclusive(false);
    button->setChecked(false);
    button->setAutoExclusive(autoExclusive);
    if (exclusiveGroup)
        group->setExclusive(true);
}

} // namespace

namespace controls {

int indexOfSelectedItem(const QComboBox *popUp)
{
    return popUp ? popUp->currentIndex() : -1;
}

QString titleOfSelectedItem(const QComboBox *popUp)
{
    const int index = indexOfSelectedItem(popUp);
    return index < 0 ? QString() : notNull(popUp->itemText(index));
}

QString keywordOfSelectedItem(const QComboBox *popUp)
{
    const int index = indexOfSelectedItem(popUp);
    return index < 0 ? QString() : popUp->itemData(index).toString();
}

void selectItemWithTitle(QComboBox *popUp, const QString &title)
{
    if (!popUp)
        return;
    int index = title.isNull() ? popUp->count() : 0;
    while (index < popUp->count() && popUp->itemText(index) != title)
        ++index;
    selectItemAtIndex(popUp, index);
}

void selectItemAtIndex(QComboBox *popUp, int index)
{
    if (popUp)
        popUp->setCurrentIndex(index < popUp->count() ? index : -1);
}

void removeAllItems(QComboBox *popUp)
{
    if (popUp)
        popUp->clear();
}

void addItem(QComboBox *popUp, const QString &title, const QString &keyword)
{
    if (popUp)
        popUp->addItem(title, keyword);
}

int state(const QAbstractButton *button)
{
    return button && button->isChecked() ? 1 : 0;
}

void setState(QAbstractButton *button, int state)
{
    if (!button)
        return;
    if (state == 0)
        uncheck(button);
    else
        button->setChecked(true);
}

QString title(const QAbstractButton *button)
{
    return button ? notNull(unescaped(button->text())) : QString();
}

void setTitle(QAbstractButton *button, const QString &title)
{
    if (button)
        button->setText(escaped(title));
}

QString text(const QLabel *label)
{
    if (!label)
        return {};
    return notNull(label->buddy() ? unescaped(label->text()) : label->text());
}

void setText(QLabel *label, const QString &text)
{
    if (!label)
        return;
    label->setTextFormat(Qt::PlainText);
    // Only a label with a buddy has a shortcut, and so reads "&".
    label->setText(label->buddy() ? escaped(text) : text);
}

QString stringValue(const QLineEdit *field)
{
    return field ? notNull(field->text()) : QString();
}

void setStringValue(QLineEdit *field, const QString &text)
{
    if (field)
        field->setText(text);
}

int integerValue(const QLineEdit *field)
{
    return platform::integerValue(stringValue(field));
}

bool isEnabled(const QWidget *control)
{
    return control && control->isEnabled();
}

void setEnabled(QWidget *control, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
}

bool isHidden(const QWidget *control)
{
    return !control || control->isHidden();
}

void setHidden(QWidget *control, bool hidden)
{
    if (control)
        control->setHidden(hidden);
}

} // namespace controls
