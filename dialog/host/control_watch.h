#pragma once

#include "dialog/printers/choice.h"
#include "platform/panel_protocol.h"

#include <QObject>

#include <memory>

namespace dialog {

/// Sees which choices a person makes with the controls of panels that tell what their controls
/// stand for: also those that a panel does not offer, refuses, or offers behind others.
class ControlWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// @p view is the panel's. The controls are watched as long as they live.
    void watch(const std::shared_ptr<PDEPanel> &panel, const QWidget *view);

Q_SIGNALS:
    /// After the panel has done what the choice makes it do.
    void chosen(const dialog::Choice &choice);

private:
    void tell(const std::weak_ptr<PDEPanel> &panel, const QString &control, int position);
    void tellText(const std::weak_ptr<PDEPanel> &panel, const QString &control,
                  const QString &text);
};

} // namespace dialog
