// The conflict windows: loading, choices, closing.

#include "conflict/dispatch.h"
#include "conflict/kor_conflict_controller.h"
#include "diag/trace.h"
#include "platform/controls/controls.h"
#include "platform/controls/modal_session.h"

#include <QEvent>

#include <algorithm>

using conflict::Choice;
using conflict::Window;

namespace {

/// A click on a choice's label is a click on its button.
class LabelClicks : public QObject
{
public:
    LabelClicks(QLabel *label, QRadioButton *button) : QObject(label), button_(button)
    {
        label->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::MouseButtonRelease || !button_)
            return false;
        button_->click();
        return true;
    }

private:
    QPointer<QRadioButton> button_;
};

} // namespace

QDialog *KorConflictController2::windowOf(Window window) const
{
    switch (window) {
    case Window::MsgOne:
        return ibMsgOneWindow;
    case Window::MsgTwo:
        return ibMsgTwoWindow;
    case Window::MsgFive:
        return ibMsgFiveWindow;
    case Window::Instruction:
        return ibInstructionWindow;
    }
    return nullptr;
}

bool KorConflictController2::loadWindows()
{
    const auto isLoaded = [this](Window window) { return windowOf(window) != nullptr; };
    const auto all = [&isLoaded] {
        return std::all_of(conflict::kAllWindows.begin(), conflict::kAllWindows.end(), isLoaded);
    };
    if (all())
        return true;
    for (const Window window : conflict::kAllWindows)
        platform::discardWindow(windowOf(window));
    const std::vector<QWidget *> loaded =
        platform::loadInterfaceFile(bundle_, QStringLiteral("Conflicts"), table());
    if (!all()) {
        qDeleteAll(loaded);
        return false;
    }
    connectWindows();
    return true;
}

void KorConflictController2::connectWindows()
{
    connectChoices();
    connectOkButtons();
    for (const Window window : conflict::kAllWindows)
        platform::setWindowDelegate(windowOf(window), this,
                                    [this](QDialog *closing) { windowWillClose(closing); });
}

/// A click hands the button itself to its handler.
template <class Button>
void KorConflictController2::connectClick(Button *button,
                                          void (KorConflictController2::*handler)(Button *))
{
    connect(button, &Button::clicked, this, [=, this] { (this->*handler)(button); });
}

void KorConflictController2::connectChoices()
{
    using Self = KorConflictController2;
    const std::pair<QRadioButton *, void (Self::*)(QRadioButton *)> handlers[] = {
        {ibFirstButton_MsgOne, &Self::clickFirstButton_MsgOne},
        {ibSecondButton_MsgOne, &Self::clickSecondButton_MsgOne},
        {ibThirdButton_MsgOne, &Self::clickThirdButton_MsgOne},
        {ibFirstButton_MsgTwo, &Self::clickFirstButton_MsgTwo},
        {ibSecondButton_MsgTwo, &Self::clickSecondButton_MsgTwo},
        {ibThirdButton_MsgTwo, &Self::clickThirdButton_MsgTwo},
        {ibFirstButton_MsgFive, &Self::clickFirstButton_MsgFive},
        {ibSecondButton_MsgFive, &Self::clickSecondButton_MsgFive},
    };
    for (const auto &[button, handler] : handlers)
        connectClick(button, handler);
    for (const Window window : conflict::kConflictWindows)
        for (const Choice &choice : choicesOf(window))
            for (QLabel *label : choice.labels)
                new LabelClicks(label, choice.button); // owned by the label
}

void KorConflictController2::connectOkButtons()
{
    using Self = KorConflictController2;
    const std::pair<QPushButton *, void (Self::*)(QPushButton *)> handlers[] = {
        {ibOkButton_MsgOne, &Self::clickOkButton_MsgOne},
        {ibOkButton_MsgTwo, &Self::clickOkButton_MsgTwo},
        {ibOkButton_MsgFive, &Self::clickOkButton_MsgFive},
    };
    for (const auto &[button, handler] : handlers)
        connectClick(button, handler);
}

std::vector<Choice> KorConflictController2::choicesOf(Window window)
{
    switch (window) {
    case Window::MsgOne:
        return {
            {ibFirstButton_MsgOne,
             &isFirstButton_MsgOneClicked,
             {ibLabelA_FirstButton_MsgOne, ibLabelB_FirstButton_MsgOne}},
            {ibSecondButton_MsgOne,
             &isSecondButton_MsgOneClicked,
             {ibLabelA_SecondButton_MsgOne, ibLabelB_SecondButton_MsgOne}},
            {ibThirdButton_MsgOne, &isThirdButton_MsgOneClicked, {ibLabelA_ThirdButton_MsgOne}}};
    case Window::MsgTwo:
        return {
            {ibFirstButton_MsgTwo,
             &isFirstButton_MsgTwoClicked,
             {ibLabelA_FirstButton_MsgTwo, ibLabelB_FirstButton_MsgTwo}},
            {ibSecondButton_MsgTwo, &isSecondButton_MsgTwoClicked, {ibLabelA_SecondButton_MsgTwo}},
            {ibThirdButton_MsgTwo, &isThirdButton_MsgTwoClicked, {ibLabelA_ThirdButton_MsgTwo}}};
    case Window::MsgFive:
        return {{ibFirstButton_MsgFive,
                 &isFirstButton_MsgFiveClicked,
                 {ibLabelA_FirstButton_MsgFive, ibLabelB_FirstButton_MsgFive}},
                {ibSecondButton_MsgFive,
                 &isSecondButton_MsgFiveClicked,
                 {ibLabelA_SecondButton_MsgFive}}};
    case Window::Instruction:
        break;
    }
    return {};
}

void KorConflictController2::choose(Window window, std::size_t index, const QRadioButton *sender)
{
    if (controls::state(sender) != 1)
        return;
    const std::vector<Choice> choices = choicesOf(window);
    for (std::size_t i = 0; i < choices.size(); ++i) {
        *choices[i].flag = i == index;
        if (i != index)
            controls::setState(choices[i].button, 0);
    }
}

void KorConflictController2::resetChoiceFlags(Window window)
{
    const std::vector<Choice> choices = choicesOf(window);
    for (std::size_t i = 0; i < choices.size(); ++i)
        *choices[i].flag = i == 0;
}

void KorConflictController2::resetChoices(Window window)
{
    resetChoiceFlags(window);
    for (const Choice &choice : choicesOf(window))
        controls::setState(choice.button, *choice.flag ? 1 : 0);
}

/// A choice's button has no text of its own; a screen reader reads its labels.
void KorConflictController2::nameChoices(Window window)
{
    for (const Choice &choice : choicesOf(window)) {
        QStringList texts;
        for (const QLabel *label : choice.labels)
            texts.append(controls::text(label));
        if (choice.button)
            choice.button->setAccessibleName(texts.join(QStringLiteral(", ")));
    }
}

void KorConflictController2::clickFirstButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgOne:]");
    choose(Window::MsgOne, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgOne:]");
    choose(Window::MsgOne, 1, sender);
}

void KorConflictController2::clickThirdButton_MsgOne(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickThirdButton_MsgOne:]");
    choose(Window::MsgOne, 2, sender);
}

void KorConflictController2::clickFirstButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgTwo:]");
    choose(Window::MsgTwo, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgTwo:]");
    choose(Window::MsgTwo, 1, sender);
}

void KorConflictController2::clickThirdButton_MsgTwo(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickThirdButton_MsgTwo:]");
    choose(Window::MsgTwo, 2, sender);
}

void KorConflictController2::clickFirstButton_MsgFive(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickFirstButton_MsgFive:]");
    choose(Window::MsgFive, 0, sender);
}

void KorConflictController2::clickSecondButton_MsgFive(QRadioButton *sender)
{
    KV_TRACE("-[KorConflictController2 clickSecondButton_MsgFive:]");
    choose(Window::MsgFive, 1, sender);
}

void KorConflictController2::windowWillClose(QDialog *)
{
    KV_TRACE("-[KorConflictController2 windowWillClose:]");
    platform::stopModal();
    platform::closeWindow(ibMsgTwoWindow);
}
