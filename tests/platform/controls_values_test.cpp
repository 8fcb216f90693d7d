#include "platform/controls/controls.h"
#include "tests/support/print_to.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

using test::q;

namespace {

void fill(QComboBox &popUp, const QStringList &titles)
{
    for (const QString &title : titles)
        controls::addItem(&popUp, title, title.toUpper());
}

/// What is visibly drawn, in the same place and size for every widget that it compares.
QImage pictureOf(QWidget &widget)
{
    widget.resize(200, 40);
    return widget.grab().toImage();
}

} // namespace

TEST(MissingControls, ReadAsNothingAndTakeWritesWithoutEffect)
{
    QComboBox *const popUp = nullptr;
    EXPECT_EQ(controls::indexOfSelectedItem(popUp), -1);
    EXPECT_NULL(controls::titleOfSelectedItem(popUp));
    EXPECT_NULL(controls::keywordOfSelectedItem(popUp));
    EXPECT_EQ(controls::state(nullptr), 0);
    EXPECT_NULL(controls::title(nullptr));
    EXPECT_NULL(controls::text(nullptr));
    EXPECT_NULL(controls::stringValue(nullptr));
    EXPECT_EQ(controls::integerValue(static_cast<QLineEdit *>(nullptr)), 0);
    EXPECT_FALSE(controls::isEnabled(nullptr));
    EXPECT_TRUE(controls::isHidden(nullptr));

    controls::selectItemWithTitle(popUp, q("Plain"));
    controls::selectItemAtIndex(popUp, 0);
    controls::removeAllItems(popUp);
    controls::addItem(popUp, q("Plain"), q("PLAIN"));
    controls::setState(nullptr, 1);
    controls::setTitle(nullptr, q("Plain"));
    controls::setText(nullptr, q("Plain"));
    controls::setStringValue(nullptr, q("Plain"));
    controls::setEnabled(nullptr, true);
    controls::setHidden(nullptr, false);
}

TEST(PopUps, SelectTheFirstItemOfATitleExactly)
{
    QComboBox popUp;
    fill(popUp, {q("plain"), q("Plain"), q("Photo"), q("Plain")});
    controls::selectItemWithTitle(&popUp, q("Plain"));
    EXPECT_EQ(controls::indexOfSelectedItem(&popUp), 1);
    EXPECT_TEXT(controls::titleOfSelectedItem(&popUp), "Plain");
    EXPECT_TEXT(controls::keywordOfSelectedItem(&popUp), "PLAIN");
}

TEST(PopUps, SelectNothingForATitleThatIsNotThere)
{
    QComboBox popUp;
    fill(popUp, {q("Plain"), q("Photo")});
    for (const QString &title : {q("Phot"), q("photo"), q("Photo "), q(""), QString()}) {
        controls::selectItemAtIndex(&popUp, 1);
        controls::selectItemWithTitle(&popUp, title);
        EXPECT_EQ(controls::indexOfSelectedItem(&popUp), -1) << title.toStdString();
        EXPECT_NULL(controls::titleOfSelectedItem(&popUp));
        EXPECT_NULL(controls::keywordOfSelectedItem(&popUp));
    }
}

TEST(PopUps, KnowAnEmptyTitleFromANullOne)
{
    QComboBox popUp;
    fill(popUp, {q("Plain"), q("")});
    controls::selectItemWithTitle(&popUp, QString());
    EXPECT_EQ(controls::indexOfSelectedItem(&popUp), -1);
    controls::selectItemWithTitle(&popUp, q(""));
    EXPECT_EQ(controls::indexOfSelectedItem(&popUp), 1);
    EXPECT_TEXT(controls::titleOfSelectedItem(&popUp), "");
}

TEST(PopUps, SelectNothingForAnIndexOutsideTheItems)
{
    QComboBox popUp;
    fill(popUp, {q("Plain"), q("Photo")});
    for (const int index : {-1, -2, 2, 1000}) {
        controls::selectItemAtIndex(&popUp, 1);
        controls::selectItemAtIndex(&popUp, index);
        EXPECT_EQ(controls::indexOfSelectedItem(&popUp), -1) << index;
    }
}

TEST(PopUps, KeepEveryItemAndSelectTheFirstOnARefill)
{
    QComboBox popUp;
    fill(popUp, {q("Plain"), q("Photo")});
    controls::selectItemAtIndex(&popUp, 1);
    controls::removeAllItems(&popUp);
    EXPECT_EQ(controls::indexOfSelectedItem(&popUp), -1);
    fill(popUp, {q("Same"), q("Same"), q("Same")});
    EXPECT_EQ(popUp.count(), 3);
    EXPECT_EQ(controls::indexOfSelectedItem(&popUp), 0);
}

TEST(PopUps, FireNoActionWhenTheProgramSelects)
{
    QComboBox popUp;
    const QSignalSpy actions(&popUp, &QComboBox::activated);
    fill(popUp, {q("Plain"), q("Photo")});
    controls::selectItemWithTitle(&popUp, q("Photo"));
    controls::selectItemAtIndex(&popUp, 0);
    controls::selectItemAtIndex(&popUp, -1);
    controls::removeAllItems(&popUp);
    EXPECT_EQ(actions.count(), 0);
}

TEST(Buttons, ReadAndWriteTheirStateWithoutAClick)
{
    QCheckBox box;
    const QSignalSpy clicks(&box, &QCheckBox::clicked);
    EXPECT_EQ(controls::state(&box), 0);
    controls::setState(&box, 1);
    EXPECT_EQ(controls::state(&box), 1);
    controls::setState(&box, 0);
    EXPECT_EQ(controls::state(&box), 0);
    controls::setState(&box, -1);
    EXPECT_EQ(controls::state(&box), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST(Buttons, OfAnExclusiveSetCanAllBeSwitchedOff)
{
    QWidget parent;
    QRadioButton first(&parent);
    QRadioButton second(&parent);
    controls::setState(&first, 1);
    controls::setState(&second, 1);
    EXPECT_EQ(controls::state(&first), 0);
    controls::setState(&second, 0);
    EXPECT_EQ(controls::state(&second), 0);
    EXPECT_TRUE(second.autoExclusive());

    QButtonGroup group;
    group.addButton(&first);
    group.addButton(&second);
    controls::setState(&first, 1);
    controls::setState(&first, 0);
    EXPECT_EQ(controls::state(&first), 0);
    EXPECT_TRUE(group.exclusive());
}

TEST(Buttons, ShowTheirTitleLiterally)
{
    QPushButton button;
    for (const char *title :
         {"Plain", "R&D", "a && b", "&", "&&", "A&", "<b>bold</b>", "%1 %@", ""}) {
        controls::setTitle(&button, q(title));
        EXPECT_TEXT(controls::title(&button), title);
        EXPECT_TRUE(button.shortcut().isEmpty()) << title;
    }
    controls::setTitle(&button, QString());
    EXPECT_TEXT(controls::title(&button), "");
}

TEST(Buttons, ReadATitleFromTheInterfaceFileAsItIsShown)
{
    EXPECT_TEXT(controls::title(std::make_unique<QPushButton>(q("&Open")).get()), "Open");
    EXPECT_TEXT(controls::title(std::make_unique<QPushButton>(q("Sa&ve && close")).get()),
                "Save & close");
}

TEST(Labels, ShowTheirTextLiterally)
{
    QLabel label;
    for (const char *text : {"Plain", "R&D", "a && b", "&", "<b>bold</b>", "&lt;", ""}) {
        controls::setText(&label, q(text));
        EXPECT_TEXT(controls::text(&label), text);
    }
    controls::setText(&label, QString());
    EXPECT_TEXT(controls::text(&label), "");
}

TEST(Labels, DrawTagsAsText)
{
    QLabel bold;
    controls::setText(&bold, q("<b>x</b>"));
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setText(q("<b>x</b>"));
    QLabel rich(q("<b>x</b>"));
    EXPECT_EQ(pictureOf(bold), pictureOf(plain));
    EXPECT_NE(pictureOf(bold), pictureOf(rich));
}

TEST(Labels, OfAControlShowTheSameTextAsOthers)
{
    QWidget parent;
    QLabel alone(&parent);
    QLabel ofField(&parent);
    QLineEdit field(&parent);
    ofField.setBuddy(&field);
    for (const char *text : {"R&D", "a && b", "&"}) {
        controls::setText(&alone, q(text));
        controls::setText(&ofField, q(text));
        EXPECT_TEXT(controls::text(&ofField), text);
        EXPECT_EQ(pictureOf(alone), pictureOf(ofField)) << text;
    }
}

TEST(TextFields, HoldAnEmptyTextWhenTheyExist)
{
    QLineEdit field;
    EXPECT_TEXT(controls::stringValue(&field), "");
    controls::setStringValue(&field, QString());
    EXPECT_TEXT(controls::stringValue(&field), "");
    controls::setStringValue(&field, q(" 4x"));
    EXPECT_TEXT(controls::stringValue(&field), " 4x");
    EXPECT_EQ(controls::integerValue(&field), 4);
}

TEST(TextFields, FireNoEditWhenTheProgramWrites)
{
    QLineEdit field;
    const QSignalSpy edits(&field, &QLineEdit::textEdited);
    controls::setStringValue(&field, q("4"));
    controls::setStringValue(&field, q("5"));
    EXPECT_EQ(edits.count(), 0);
}

TEST(AnyControl, IsHiddenOnlyByItself)
{
    QWidget parent;
    QLabel label(&parent);
    EXPECT_FALSE(controls::isHidden(&label));
    controls::setHidden(&label, true);
    EXPECT_TRUE(controls::isHidden(&label));
    parent.show();
    controls::setHidden(&label, false);
    parent.hide();
    EXPECT_FALSE(controls::isHidden(&label));
}

TEST(AnyControl, CanBeDisabledAndEnabled)
{
    QCheckBox box;
    EXPECT_TRUE(controls::isEnabled(&box));
    controls::setEnabled(&box, false);
    EXPECT_FALSE(controls::isEnabled(&box));
    controls::setEnabled(&box, true);
    EXPECT_TRUE(controls::isEnabled(&box));
}
