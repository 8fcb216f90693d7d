#pragma once

#include "platform/bundle.h"
#include "platform/export.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

/// Interface files: Qt Designer files in a bundle, loaded at run time with an owner whose outlets
/// are connected by object name.
namespace platform {

/// An owner's outlets. Outlets are guarded pointers: they become null when the host destroys the
/// view.
class OutletTable
{
public:
    template <class Control>
    OutletTable &add(const char *name, QPointer<Control> &outlet)
    {
        entries_.push_back(
            {QString::fromLatin1(name), &Control::staticMetaObject,
             [&outlet](QWidget *widget) { outlet = static_cast<Control *>(widget); }});
        return *this;
    }

    struct Entry
    {
        QString name;
        const QMetaObject *type;
        std::function<void(QWidget *)> connect;
    };
    [[nodiscard]] const std::vector<Entry> &entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

/// Loads "<name>.ui" of the bundle's resources, or every "<name>/*.ui" in order of file name where
/// the interface file has several top-level windows, and connects the outlets: each to the widget
/// of its name and class, itself a top level or below one. Returns the top levels, without parent,
/// owned by the caller; empty, with no outlet touched, when a file is missing or cannot be read.
///
/// An outlet whose widget is missing or of another class stays null, and an unknown custom class
/// makes the whole load fail; each is reported by qCritical, which fails every test, and reads as
/// missing in production. Known custom classes: PopUpButton, Stepper, RadioMatrix, FrameView,
/// DisclosureButton.
///
/// Texts marked as translatable in the file are looked up in the bundle's default string table by
/// the text itself.
[[nodiscard]] PLATFORM_EXPORT std::vector<QWidget *>
loadInterfaceFile(const Bundle *bundle, const QString &name, const OutletTable &outlets);

} // namespace platform
