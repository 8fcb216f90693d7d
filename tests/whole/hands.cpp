#include "tests/whole/hands.h"

#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "tests/support/user.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace test {
namespace {

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QCheckBox *>(widget) ||
           qobject_cast<const QToolButton *>(widget) || qobject_cast<const Stepper *>(widget) ||
           qobject_cast<const QLineEdit *>(widget) || qobject_cast<const RadioMatrix *>(widget);
}

void pickAnother(QComboBox *popUp)
{
    if (popUp->count() > 0)
        pick(popUp, (qMax(popUp->currentIndex(), 0) + 1) % qMin(popUp->count(), 3));
}

void stepOnce(Stepper *stepper)
{
    user::click(stepper->value() < stepper->maximum() ? stepper->upButton()
                                                      : stepper->downButton());
}

void typeDigit(QLineEdit *field)
{
    field->window()->activateWindow();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_4);
}

} // namespace

void pick(QComboBox *popUp, int index)
{
    popUp->window()->show();
    ASSERT_TRUE(isUsable(popUp)) << popUp->objectName().toStdString();
    QTest::keyClick(popUp, Qt::Key_F4);
    QTest::keyClick(popUp->view(), Qt::Key_Home);
    for (int step = 0; step < index; ++step)
        QTest::keyClick(popUp->view(), Qt::Key_Down);
    QTest::keyClick(popUp->view(), Qt::Key_Return);
}

QWidgetList controlsOf(const QWidget *view)
{
    QWidgetList controls;
    for (QWidget *widget : view->findChildren<QWidget *>()) {
        if (widget->objectName().startsWith(QLatin1String("ib")) && isControl(widget))
            controls.append(widget);
    }
    return controls;
}

bool isUsable(const QWidget *control)
{
    return control->isVisible() && control->isEnabled();
}

void use(QWidget *control)
{
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        pickAnother(popUp);
    else if (auto *stepper = qobject_cast<Stepper *>(control))
        stepOnce(stepper);
    else if (auto *field = qobject_cast<QLineEdit *>(control))
        typeDigit(field);
    else if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        user::clickRow(matrix, 1);
    else
        user::click(qobject_cast<QAbstractButton *>(control));
}

void openAdvanced(QWidget *view)
{
    view->window()->show();
    auto *triangle = view->findChild<QToolButton *>(QStringLiteral("ibDisclosure"));
    if (triangle && !triangle->isChecked())
        user::click(triangle);
}

void useEveryControl(QWidget *view, const std::function<void(QWidget *)> &afterEach)
{
    openAdvanced(view);
    for (QWidget *control : controlsOf(view)) {
        if (!isUsable(control) || qobject_cast<QToolButton *>(control))
            continue;
        use(control);
        if (afterEach)
            afterEach(control);
    }
}

} // namespace test
