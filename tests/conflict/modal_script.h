#pragma once

#include <QDialog>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

namespace test {

/// Plays a person in front of modal windows: the n-th window that opens gets the n-th step, run
/// from the window's own event loop. A window without a step is closed, and fails the test.
class ModalScript : public QObject
{
public:
    using Step = std::function<void(QDialog *)>;

    explicit ModalScript(std::vector<Step> steps);
    ~ModalScript() override;

    /// Object names of the windows that opened, in order.
    [[nodiscard]] const QStringList &opened() const { return opened_; }

private:
    void play(QDialog *window);

    std::vector<Step> steps_;
    QStringList opened_;
};

} // namespace test
