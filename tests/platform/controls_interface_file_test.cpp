#include "platform/controls/frame_view.h"
#include "platform/controls/interface_file.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/values.h"
#include "tests/support/print_to.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>

#include <sys/stat.h>

using test::q;

namespace {

QByteArray interfaceOf(const QByteArray &widget, const QByteArray &more = {})
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">" + widget + more +
           "</ui>";
}

QByteArray labelled(const QByteArray &string)
{
    return interfaceOf("<widget class=\"QLabel\" name=\"ibLabel\"><property name=\"text\">" +
                       string + "</property></widget>");
}

const QByteArray kPanel = interfaceOf(R"(
<widget class="FrameView" name="ibView">
 <property name="frameRecord">
  <rectf><x>0.0</x><y>123.5</y><width>440.0</width><height>160.0</height></rectf>
 </property>
 <layout class="QFormLayout">
  <item row="0" column="0"><widget class="QLabel" name="ibPaperLabel">
   <property name="text"><string>&amp;Paper:</string></property>
   <property name="buddy"><cstring>ibPaper</cstring></property></widget></item>
  <item row="0" column="1"><widget class="PopUpButton" name="ibPaper"/></item>
  <item row="1" column="0"><widget class="RadioMatrix" name="ibMatrix">
   <property name="rows"><number>2</number></property></widget></item>
  <item row="1" column="1"><widget class="Stepper" name="ibStepper">
   <property name="minimum"><number>1</number></property>
   <property name="maximum"><number>5</number></property>
   <property name="value"><number>3</number></property>
   <property name="accessibleName"><string>Threshold</string></property></widget></item>
  <item row="2" column="1"><widget class="QLineEdit" name="ibField">
   <property name="text"><string>3</string></property></widget></item>
 </layout>
</widget>)",
                                      R"(<tabstops>
 <tabstop>ibField</tabstop><tabstop>ibStepper</tabstop><tabstop>ibPaper</tabstop>
</tabstops>)");

QByteArray dialogNamed(const QByteArray &name)
{
    return interfaceOf("<widget class=\"QDialog\" name=\"" + name +
                       "\"><property name=\"windowTitle\"><string>Conflict</string></property>"
                       "<widget class=\"QPushButton\" name=\"" +
                       name + "Ok\"/></widget>");
}

/// A bundle of the test's own, and what was loaded from it.
class InterfaceFiles : public testing::Test
{
protected:
    InterfaceFiles()
    {
        QDir().mkpath(resource(QString()));
        bundle = Bundle::bundleWithPath(directory.path());
    }

    [[nodiscard]] QString resource(const QString &name) const
    {
        return directory.path() + q("/Contents/Resources/") + name;
    }

    void write(const char *name, const QByteArray &contents) const
    {
        const QString path = resource(q(name));
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    void speakFrench()
    {
        ASSERT_TRUE(QFile::copy(q(CONTROLS_FRENCH_TABLE), resource(q("Localizable_fr.qm"))));
        platform::setPreferredLanguages({q("fr-CA")});
    }

    /// The number of top levels.
    std::size_t load(const char *name, const platform::OutletTable &outlets = {})
    {
        loaded.clear();
        for (QWidget *widget : platform::loadInterfaceFile(bundle.get(), q(name), outlets))
            loaded.emplace_back(widget);
        return loaded.size();
    }

    template <class Control>
    Control *child(const char *name) const
    {
        return loaded.front()->findChild<Control *>(q(name));
    }

    QTemporaryDir directory;
    std::unique_ptr<Bundle> bundle;
    std::vector<std::unique_ptr<QWidget>> loaded;
};

} // namespace

TEST_F(InterfaceFiles, ConnectOutletsByNameAndClass)
{
    write("Panel.ui", kPanel);
    QPointer<FrameView> view;
    QPointer<QComboBox> paper;
    QPointer<Stepper> stepper;
    QPointer<RadioMatrix> matrix;
    QPointer<QLineEdit> field;
    ASSERT_EQ(load("Panel", platform::OutletTable()
                                .add("ibView", view)
                                .add("ibPaper", paper)
                                .add("ibStepper", stepper)
                                .add("ibMatrix", matrix)
                                .add("ibField", field)),
              1u);
    EXPECT_EQ(view, loaded.front().get());
    EXPECT_EQ(view->parentWidget(), nullptr);
    ASSERT_TRUE(paper && stepper && matrix && field);
    EXPECT_NE(qobject_cast<PopUpButton *>(paper), nullptr);
    EXPECT_EQ(view->frameRecord(), QRectF(0, 123.5, 440, 160));
    EXPECT_EQ(stepper->value(), 3);
    EXPECT_EQ(stepper->maximum(), 5);
    EXPECT_TEXT(stepper->accessibleName(), "Threshold");
    EXPECT_EQ(matrix->rows(), 2);
    EXPECT_TEXT(field->text(), "3");
}

TEST_F(InterfaceFiles, LoseTheirOutletsWithTheView)
{
    write("Panel.ui", kPanel);
    QPointer<FrameView> view;
    QPointer<Stepper> stepper;
    load("Panel", platform::OutletTable().add("ibView", view).add("ibStepper", stepper));
    ASSERT_TRUE(view && stepper);
    loaded.clear();
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(stepper.isNull());
}

TEST_F(InterfaceFiles, KeepLayoutBuddiesAndTabStops)
{
    write("Panel.ui", kPanel);
    load("Panel");
    EXPECT_NE(loaded.front()->layout(), nullptr);
    EXPECT_EQ(child<QLabel>("ibPaperLabel")->buddy(), child<QWidget>("ibPaper"));
    loaded.front()->show();
    loaded.front()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(loaded.front().get()));
    child<QLineEdit>("ibField")->setFocus();
    QTest::keyClick(child<QWidget>("ibField"), Qt::Key_Tab);
    EXPECT_TRUE(child<Stepper>("ibStepper")->hasFocus());
    QTest::keyClick(child<QWidget>("ibStepper"), Qt::Key_Tab);
    EXPECT_TRUE(child<QWidget>("ibPaper")->hasFocus());
}

TEST_F(InterfaceFiles, OfSeveralWindowsLoadAllInOrderOfFileName)
{
    write("Windows/20.ui", dialogNamed("ibSecond"));
    write("Windows/10.ui", dialogNamed("ibFirst"));
    write("Windows/notes.txt", "not an interface");
    QPointer<QDialog> second;
    QPointer<QPushButton> ok;
    ASSERT_EQ(load("Windows", platform::OutletTable().add("ibSecond", second).add("ibFirstOk", ok)),
              2u);
    EXPECT_TEXT(loaded[0]->objectName(), "ibFirst");
    EXPECT_EQ(second, loaded[1].get());
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->window(), loaded[0].get());
}

TEST_F(InterfaceFiles, LoadAnewEachTime)
{
    write("Panel.ui", kPanel);
    QPointer<Stepper> first;
    QPointer<Stepper> second;
    const std::unique_ptr<QWidget> one(
        platform::loadInterfaceFile(bundle.get(), q("Panel"),
                                    platform::OutletTable().add("ibStepper", first))
            .front());
    load("Panel", platform::OutletTable().add("ibStepper", second));
    EXPECT_NE(first, second);
    EXPECT_TRUE(first && second);
}

TEST_F(InterfaceFiles, ThatAreMissingLoadNothing)
{
    QLabel former;
    QPointer<QLabel> outlet = &former;
    const auto outlets = platform::OutletTable().add("ibLabel", outlet);
    EXPECT_EQ(load("Nowhere", outlets), 0u);
    EXPECT_TRUE(platform::loadInterfaceFile(nullptr, q("Panel"), outlets).empty());
    EXPECT_TRUE(platform::loadInterfaceFile(Bundle::mainBundle(), q("Panel"), outlets).empty());
    EXPECT_EQ(load("", outlets), 0u);
    EXPECT_EQ(outlet, &former);
}

TEST_F(InterfaceFiles, ThatAreNoPlainFilesLoadNothing)
{
    QDir().mkpath(resource(q("Folder.ui")));
    QDir().mkpath(resource(q("Empty")));
    ASSERT_EQ(::mkfifo(resource(q("Pipe.ui")).toUtf8().constData(), 0600), 0);
    EXPECT_EQ(load("Folder"), 0u);
    EXPECT_EQ(load("Empty"), 0u);
    EXPECT_EQ(load("Pipe"), 0u);
}

TEST_F(InterfaceFiles, OfAnExcessiveSizeLoadNothing)
{
    const QByteArray comment = "<!--" + QByteArray(1 << 20, 'x') + "-->";
    write("Large.ui", interfaceOf("<widget class=\"QLabel\" name=\"ibLabel\"/>", comment));
    EXPECT_EQ(load("Large"), 0u);
}

TEST_F(InterfaceFiles, ThatAreBrokenLoadNothingWithAWarning)
{
    QPointer<QLabel> outlet;
    const QByteArray whole = labelled("<string>x</string>");
    const std::pair<const char *, QByteArray> broken[] = {
        {"Cut.ui", whole.left(whole.size() / 2)},
        {"Empty.ui", QByteArray()},
        {"Text.ui", "not an interface"},
        {"Hollow.ui", interfaceOf(QByteArray())},
        {"Nested.ui", labelled("<string>a<b/>c</string>")},
    };
    for (const auto &[name, contents] : broken) {
        write(name, contents);
        const test::ExpectWarning damaged(q("is damaged$"));
        EXPECT_EQ(load(QByteArray(name).chopped(3), platform::OutletTable().add("ibLabel", outlet)),
                  0u)
            << name;
        EXPECT_TRUE(outlet.isNull());
    }
}

TEST_F(InterfaceFiles, OfSeveralWindowsLoadAllOrNone)
{
    write("Windows/10.ui", dialogNamed("ibFirst"));
    write("Windows/20.ui", "broken");
    QPointer<QDialog> first;
    const test::ExpectWarning damaged(q("20.ui is damaged$"));
    EXPECT_EQ(load("Windows", platform::OutletTable().add("ibFirst", first)), 0u);
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(InterfaceFiles, LeaveAnOutletOfAnotherClassNullAndSaySo)
{
    write("Panel.ui", kPanel);
    QPointer<QCheckBox> wrong;
    QPointer<Stepper> right;
    const test::ExpectWarning reported(q("ibField.*not a QCheckBox"));
    EXPECT_EQ(load("Panel", platform::OutletTable().add("ibField", wrong).add("ibStepper", right)),
              1u);
    EXPECT_TRUE(wrong.isNull());
    EXPECT_FALSE(right.isNull());
}

TEST_F(InterfaceFiles, LeaveAnOutletWithoutWidgetNullAndSaySo)
{
    write("Panel.ui", kPanel);
    QPointer<QCheckBox> missing;
    const test::ExpectWarning reported(q("ibNowhere.*no widget.*QCheckBox"));
    EXPECT_EQ(load("Panel", platform::OutletTable().add("ibNowhere", missing)), 1u);
    EXPECT_TRUE(missing.isNull());
}

TEST_F(InterfaceFiles, WithAnUnknownCustomClassLoadNothing)
{
    write("Panel.ui", interfaceOf("<widget class=\"QWidget\" name=\"ibView\">"
                                  "<widget class=\"QLabel\" name=\"ibLabel\"/>"
                                  "<widget class=\"Dial\" name=\"ibDial\"/></widget>",
                                  "<customwidgets><customwidget><class>Dial</class>"
                                  "<extends>QWidget</extends><header>dial.h</header>"
                                  "</customwidget></customwidgets>"));
    QPointer<QLabel> label;
    const test::ExpectWarning reported(q("ibDial.*unknown class Dial"));
    EXPECT_EQ(load("Panel", platform::OutletTable().add("ibLabel", label)), 0u);
    EXPECT_TRUE(label.isNull());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(InterfaceFiles, WithAnUnknownTopLevelLoadNothing)
{
    write("Panel.ui", interfaceOf("<widget class=\"Dial\" name=\"ibDial\"/>"));
    const test::ExpectWarning reported(q("ibDial.*unknown class Dial"));
    EXPECT_EQ(load("Panel"), 0u);
}

TEST_F(InterfaceFiles, MayUseLinesOfTheDesigner)
{
    write("Panel.ui", interfaceOf("<widget class=\"QWidget\" name=\"ibView\">"
                                  "<widget class=\"Line\" name=\"ibLine\"/></widget>"));
    QPointer<QFrame> line;
    EXPECT_EQ(load("Panel", platform::OutletTable().add("ibLine", line)), 1u);
    EXPECT_FALSE(line.isNull());
}

TEST_F(InterfaceFiles, SpeakTheLanguageOfTheBundle)
{
    speakFrench();
    write("Panel.ui", labelled("<string>Options &amp; &lt;more&gt;</string>"));
    load("Panel");
    EXPECT_TEXT(static_cast<QLabel *>(loaded.front().get())->text(), "Options & <suite>");
}

TEST_F(InterfaceFiles, TranslateEveryKindOfText)
{
    speakFrench();
    write("Panel.ui", interfaceOf(R"(<widget class="QDialog" name="ibView">
 <property name="windowTitle"><string>Conflict</string></property>
 <widget class="QComboBox" name="ibItems">
  <property name="toolTip"><string>First</string></property>
  <property name="accessibleName"><string>First</string></property>
  <item><property name="text"><string>First</string></property></item></widget>
 <widget class="QLineEdit" name="ibField">
  <property name="placeholderText"><string>First</string></property></widget></widget>)"));
    load("Panel");
    EXPECT_TEXT(loaded.front()->windowTitle(), "Conflit");
    EXPECT_TEXT(child<QComboBox>("ibItems")->toolTip(), "Premier");
    EXPECT_TEXT(child<QComboBox>("ibItems")->accessibleName(), "Premier");
    EXPECT_TEXT(child<QComboBox>("ibItems")->itemText(0), "Premier");
    EXPECT_TEXT(child<QLineEdit>("ibField")->placeholderText(), "Premier");
}

TEST_F(InterfaceFiles, LeaveTextsThatAreNotTranslatable)
{
    speakFrench();
    write("Panel.ui", labelled("<string notr=\"true\">First</string>"));
    load("Panel");
    EXPECT_TEXT(static_cast<QLabel *>(loaded.front().get())->text(), "First");
}

TEST_F(InterfaceFiles, TitleTheRowsOfAMatrix)
{
    speakFrench();
    const QByteArray titles =
        "<string>First</string><string>R&amp;D</string></stringlist></property>";
    write("Panel.ui", interfaceOf("<widget class=\"QWidget\" name=\"ibView\">"
                                  "<widget class=\"RadioMatrix\" name=\"ibTranslated\">"
                                  "<property name=\"titles\"><stringlist>" +
                                  titles +
                                  "</widget><widget class=\"RadioMatrix\" name=\"ibLiteral\">"
                                  "<property name=\"titles\"><stringlist notr=\"true\">" +
                                  titles + "</widget></widget>"));
    load("Panel");
    EXPECT_EQ(child<RadioMatrix>("ibTranslated")->titles(), QStringList({q("Premier"), q("R&D")}));
    EXPECT_EQ(child<RadioMatrix>("ibLiteral")->titles(), QStringList({q("First"), q("R&D")}));
}

TEST_F(InterfaceFiles, ShowTheTextOfTheFileWhereThereIsNoTranslation)
{
    write("Panel.ui", labelled("<string>Two\nlines &amp; more</string>"));
    load("Panel");
    EXPECT_TEXT(static_cast<QLabel *>(loaded.front().get())->text(), "Two\nlines & more");
}

TEST_F(InterfaceFiles, AreNotTranslatedByTheApplication)
{
    class Shouting : public QTranslator
    {
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QString::fromUtf8(source).toUpper();
        }
        bool isEmpty() const override { return false; }
    } shouting;
    QCoreApplication::installTranslator(&shouting);
    write("Panel.ui", labelled("<string>First</string>"));
    load("Panel");
    EXPECT_TEXT(static_cast<QLabel *>(loaded.front().get())->text(), "First");
}

TEST_F(InterfaceFiles, LoadNoForeignLibraries)
{
    const QTemporaryDir plugins;
    ASSERT_TRUE(QDir(plugins.path()).mkdir(q("designer")));
    ASSERT_TRUE(
        QFile::copy(q(CONTROLS_FOREIGN_LIBRARY), plugins.filePath(q("designer/libforeign.so"))));
    QCoreApplication::addLibraryPath(plugins.path());
    const QStringList paths = QCoreApplication::libraryPaths();
    write("Panel.ui", kPanel);
    EXPECT_EQ(load("Panel"), 1u);
    EXPECT_FALSE(qEnvironmentVariableIsSet("CONTROLS_FOREIGN_LIBRARY_WAS_LOADED"));
    EXPECT_EQ(QCoreApplication::libraryPaths(), paths);
    QCoreApplication::removeLibraryPath(plugins.path());
}
