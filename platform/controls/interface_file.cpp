#include "platform/controls/interface_file.h"

#include "platform/controls/disclosure_button.h"
#include "platform/controls/frame_view.h"
#include "platform/controls/pop_up_button.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/regular_file.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <memory>
#include <optional>

namespace platform {
namespace {

constexpr qint64 largestFile = 1 << 20;

using WidgetMaker = QWidget *(*)(QWidget *parent);

template <class Control>
QWidget *make(QWidget *parent)
{
    return new Control(parent);
}

struct CustomClass
{
    const QMetaObject *type;
    WidgetMaker make;
};

const CustomClass customClasses[] = {
    {&PopUpButton::staticMetaObject, make<PopUpButton>},
    {&Stepper::staticMetaObject, make<Stepper>},
    {&RadioMatrix::staticMetaObject, make<RadioMatrix>},
    {&FrameView::staticMetaObject, make<FrameView>},
    {&DisclosureButton::staticMetaObject, make<DisclosureButton>},
};

WidgetMaker makerOf(const QString &className)
{
    for (const CustomClass &known : customClasses)
        if (className == QLatin1String(known.type->className()))
            return known.make;
    return nullptr;
}

/// While it lives, Qt looks for plug-ins nowhere: a QUiLoader loads every library that it finds in
/// a "designer" folder as soon as it is constructed.
class NoLibraryPaths
{
public:
    NoLibraryPaths() { QCoreApplication::setLibraryPaths({}); }
    ~NoLibraryPaths() { QCoreApplication::setLibraryPaths(paths_); }
    Q_DISABLE_COPY_MOVE(NoLibraryPaths)

private:
    const QStringList paths_ = QCoreApplication::libraryPaths();
};

/// Creates standard widgets and our own; takes notice of any other, which QUiLoader itself would
/// silently replace by its base class.
class Loader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        if (const WidgetMaker maker = makerOf(className)) {
            QWidget *widget = maker(parent);
            widget->setObjectName(name);
            return widget;
        }
        if (className == QLatin1String("Line") || availableWidgets().contains(className))
            return QUiLoader::createWidget(className, parent, name);
        qCritical("interface file: %s is of the unknown class %s", qUtf8Printable(name),
                  qUtf8Printable(className));
        foundUnknownClass_ = true;
        return new QWidget(parent); // goes with the rest of the interface
    }

    [[nodiscard]] bool foundUnknownClass() const { return foundUnknownClass_; }

private:
    bool foundUnknownClass_ = false;
};

/// With no plug-in but what this process has loaded for other reasons.
std::unique_ptr<Loader> makeLoader()
{
    const NoLibraryPaths noForeignLibraries;
    return std::make_unique<Loader>();
}

const QLatin1String kNotTranslatable("notr");

bool isMarked(const QXmlStreamReader &element)
{
    return element.attributes().value(kNotTranslatable) == QLatin1String("true");
}

/// Writes one <string>, marked so that QUiLoader does not hand it to the application's translators.
void writeString(QXmlStreamWriter &to, const QString &text)
{
    to.writeStartElement(QStringLiteral("string"));
    to.writeAttribute(kNotTranslatable, QStringLiteral("true"));
    to.writeCharacters(text);
    to.writeEndElement();
}

/// The same interface with its translatable texts in the bundle's language; empty if malformed. A
/// text is translatable unless it, or the list that it is in, is marked otherwise.
QByteArray localized(const QByteArray &contents, const Bundle *bundle)
{
    QByteArray result;
    QXmlStreamReader from(contents);
    QXmlStreamWriter to(&result);
    bool inMarkedList = false;
    while (!from.atEnd() && from.readNext() != QXmlStreamReader::Invalid) {
        if (from.name() == QLatin1String("stringlist"))
            inMarkedList = from.isStartElement() && isMarked(from);
        if (from.isStartElement() && from.name() == QLatin1String("string")) {
            const bool literal = inMarkedList || isMarked(from);
            const QString text = from.readElementText();
            writeString(to, literal ? text : bundle->localizedString(text));
        } else {
            to.writeCurrentToken(from);
        }
    }
    return from.hasError() ? QByteArray() : result;
}

std::unique_ptr<QWidget> loadWidget(const Bundle *bundle, const QString &path)
{
    const std::optional<QByteArray> contents = readRegularFile(path, largestFile);
    if (!contents)
        return nullptr;
    QByteArray interface = localized(*contents, bundle);
    QBuffer device(&interface);
    device.open(QIODevice::ReadOnly);
    const std::unique_ptr<Loader> loader = makeLoader();
    std::unique_ptr<QWidget> widget(interface.isEmpty() ? nullptr : loader->load(&device));
    if (loader->foundUnknownClass())
        return nullptr;
    if (!widget)
        qWarning("interface file %s is damaged", qUtf8Printable(path));
    return widget;
}

/// Paths of the files that make up an interface file; a null path stands for a missing one.
QStringList filesOf(const Bundle *bundle, const QString &name)
{
    const QString folder = bundle->resourcePath(name);
    if (folder.isNull() || !QFileInfo(folder).isDir())
        return {bundle->resourcePath(name + QLatin1String(".ui"))};
    const QDir windows(folder);
    QStringList paths;
    for (const QString &file : windows.entryList({QStringLiteral("*.ui")}, QDir::Files, QDir::Name))
        paths.append(windows.filePath(file));
    return paths;
}

using Windows = std::vector<std::unique_ptr<QWidget>>;

/// All windows of the interface file, or none.
Windows loadWindows(const Bundle *bundle, const QString &name)
{
    Windows windows;
    for (const QString &path : filesOf(bundle, name)) {
        windows.push_back(loadWidget(bundle, path));
        if (!windows.back())
            return {};
    }
    return windows;
}

QWidgetList widgetsNamed(const QString &name, const Windows &windows)
{
    QWidgetList found;
    for (const auto &window : windows) {
        if (window->objectName() == name)
            found.append(window.get());
        found.append(window->findChildren<QWidget *>(name));
    }
    return found;
}

void connectOutlet(const OutletTable::Entry &outlet, const Windows &windows)
{
    const QWidgetList candidates = widgetsNamed(outlet.name, windows);
    for (QWidget *widget : candidates)
        if (widget->metaObject()->inherits(outlet.type))
            return outlet.connect(widget);
    qCritical("interface file: outlet %s: %s %s", qUtf8Printable(outlet.name),
              candidates.isEmpty() ? "no widget of this name, wanted a" : "its widget is not a",
              outlet.type->className());
}

} // namespace

std::vector<QWidget *> loadInterfaceFile(const Bundle *bundle, const QString &name,
                                         const OutletTable &outlets)
{
    if (!bundle)
        return {};
    Windows windows = loadWindows(bundle, name);
    if (windows.empty())
        return {};
    for (const OutletTable::Entry &outlet : outlets.entries())
        connectOutlet(outlet, windows);
    std::vector<QWidget *> topLevels;
    for (auto &window : windows)
        topLevels.push_back(window.release());
    return topLevels;
}

} // namespace platform
