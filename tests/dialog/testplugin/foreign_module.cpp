#include <QObject>
#include <QtPlugin>

/// A plug-in made for something else.
class ForeignModule : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.SomethingElse/7")
};

#include "foreign_module.moc"
