#include <QObject>

/// A proper plug-in as far as its file shows, which leaves a trace in the process that loads it.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
};

[[gnu::constructor]] static void leaveTrace()
{
    qputenv("CONTROLS_FOREIGN_LIBRARY_WAS_LOADED", QByteArrayLiteral("yes"));
}

#include "foreign_library.moc"
