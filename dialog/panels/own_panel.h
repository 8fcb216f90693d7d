#pragma once

#include <QWidget>

#include <utility>

namespace dialog {

/// A panel of the dialog's own, beside those of plug-ins.
class OwnPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// What the panel chooser shows.
    [[nodiscard]] virtual QString title() const = 0;
    /// The name that scenarios and stored settings know it by, in every language.
    [[nodiscard]] virtual QString kind() const = 0;
    /// Brings the controls in line with what is set. Called before the panel is shown, and while it
    /// is in front after every change. The first call makes the controls: no window waits for those
    /// of panels that nobody opens.
    void refresh()
    {
        if (!std::exchange(isBuilt_, true))
            build();
        follow();
    }

protected:
    [[nodiscard]] bool isBuilt() const { return isBuilt_; }

private:
    virtual void build() = 0;
    virtual void follow() = 0;

    bool isBuilt_ = false;
};

} // namespace dialog
