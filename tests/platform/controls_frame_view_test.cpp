#include "platform/controls/frame_view.h"

#include <gtest/gtest.h>

TEST(FrameViews, KeepTheirRecordExactlyAndApartFromTheScreen)
{
    FrameView view;
    view.setGeometry(1, 2, 30, 40);
    controls::setFrameRecord(&view, QRectF(0.1, -123.25, 440.5, 1e9 + 0.5));
    EXPECT_EQ(controls::frameRecord(&view), QRectF(0.1, -123.25, 440.5, 1e9 + 0.5));
    EXPECT_EQ(view.geometry(), QRect(1, 2, 30, 40));
    view.setGeometry(5, 6, 70, 80);
    EXPECT_EQ(controls::frameRecord(&view), QRectF(0.1, -123.25, 440.5, 1e9 + 0.5));
}

TEST(FrameViews, ChangeSizeAndOriginSeparately)
{
    FrameView view;
    controls::setFrameRecord(&view, QRectF(1, 2, 3, 4));
    controls::setFrameSize(&view, QSizeF(30, 40));
    EXPECT_EQ(controls::frameRecord(&view), QRectF(1, 2, 30, 40));
    controls::setFrameOrigin(&view, QPointF(10, 20));
    EXPECT_EQ(controls::frameRecord(&view), QRectF(10, 20, 30, 40));
}

TEST(FrameViews, ThatAreMissingReadAsZero)
{
    controls::setFrameRecord(nullptr, QRectF(1, 2, 3, 4));
    controls::setFrameSize(nullptr, QSizeF(1, 2));
    controls::setFrameOrigin(nullptr, QPointF(1, 2));
    EXPECT_EQ(controls::frameRecord(nullptr), QRectF(0, 0, 0, 0));
}

TEST(FrameViews, TakeTheirRecordAsAProperty)
{
    FrameView view;
    EXPECT_TRUE(view.setProperty("frameRecord", QRectF(0, 123, 440, 160)));
    EXPECT_EQ(view.frameRecord(), QRectF(0, 123, 440, 160));
}
