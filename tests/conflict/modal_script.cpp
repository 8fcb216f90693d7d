#include "tests/conflict/modal_script.h"

#include "platform/controls/modal_session.h"

#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

namespace test {

ModalScript::ModalScript(std::vector<Step> steps) : steps_(std::move(steps))
{
    connect(&platform::ModalSessions::shared(), &platform::ModalSessions::opened, this,
            [this](QDialog *window) { play(window); });
}

ModalScript::~ModalScript()
{
    EXPECT_EQ(static_cast<std::size_t>(opened_.size()), steps_.size())
        << "windows: " << opened_.join(QStringLiteral(", ")).toStdString();
}

void ModalScript::play(QDialog *window)
{
    const auto index = static_cast<std::size_t>(opened_.size());
    opened_.append(window->objectName());
    QTimer::singleShot(0, window, [this, window, index] {
        if (index < steps_.size())
            return steps_[index](window);
        ADD_FAILURE() << "unexpected window " << window->objectName().toStdString();
        platform::stopAllModalSessions();
    });
}

} // namespace test
