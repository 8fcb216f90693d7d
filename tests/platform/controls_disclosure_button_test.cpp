#include "platform/controls/disclosure_button.h"

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// A closed triangle on a window that has the focus elsewhere.
class Disclosure : public testing::Test
{
protected:
    Disclosure()
    {
        window.setFocusPolicy(Qt::StrongFocus);
        button->resize(button->sizeHint());
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.setFocus();
    }

    /// Columns and rows at the button's edges that are not the window's background.
    int inkAtTheEdges()
    {
        const QImage picture = window.grab(button->geometry()).toImage();
        int ink = 0;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                if (x == 0 || y == 0 || x == picture.width() - 1 || y == picture.height() - 1)
                    ink += picture.pixelColor(x, y) != window.palette().color(QPalette::Window);
        return ink;
    }
    QImage picture() { return button->grab().toImage(); }

    QWidget window;
    DisclosureButton *button = new DisclosureButton(&window);
};

TEST_F(Disclosure, ATrianglePointsRightWhileClosedAndDownWhileOpen)
{
    EXPECT_EQ(button->arrowType(), Qt::RightArrow);
    const QImage closed = picture();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(button->isChecked());
    EXPECT_EQ(button->arrowType(), Qt::DownArrow);
    EXPECT_NE(picture(), closed);
    button->setChecked(false);
    EXPECT_EQ(button->arrowType(), Qt::RightArrow);
}

TEST_F(Disclosure, ATriangleHasNoFrameInEitherState)
{
    EXPECT_EQ(inkAtTheEdges(), 0);
    button->setChecked(true);
    EXPECT_EQ(inkAtTheEdges(), 0);
}

TEST_F(Disclosure, ATriangleIsWorkedByKeysAndShowsThatItHasTheFocus)
{
    const QImage before = picture();
    QTest::keyClick(&window, Qt::Key_Tab);
    ASSERT_TRUE(button->hasFocus());
    EXPECT_NE(picture(), before);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_TRUE(button->isChecked());
}

} // namespace
