#include "platform/bundle.h"

#include "platform/property_list.h"
#include "platform/values.h"

#include <QFileInfo>

namespace {

constexpr QLatin1String kDefaultTable("Localizable");

QVariantMap dictionaryAt(const QString &path)
{
    return platform::readPropertyList(path).toMap();
}

} // namespace

std::unique_ptr<Bundle> Bundle::bundleWithPath(const QString &realPath)
{
    if (realPath.isEmpty() || !QFileInfo(realPath).isDir())
        return nullptr;
    return std::unique_ptr<Bundle>(new Bundle(realPath));
}

Bundle *Bundle::mainBundle()
{
    static Bundle withoutFiles{QString()};
    return &withoutFiles;
}

QVariantMap Bundle::infoDictionary() const
{
    if (path_.isNull())
        return {};
    const QVariantMap inContents = dictionaryAt(path_ + QStringLiteral("/Contents/Info.plist"));
    return inContents.isEmpty() ? dictionaryAt(path_ + QStringLiteral("/Info.plist")) : inContents;
}

QString Bundle::resourcePath(const QString &name) const
{
    if (path_.isNull() || name.isEmpty())
        return {};
    const QString path = path_ + QStringLiteral("/Contents/Resources/") + name;
    return QFileInfo::exists(path) ? path : QString();
}

QString Bundle::localizedString(const QString &key, const QString &fallback,
                                const QString &table) const
{
    const QString tableName = table.isEmpty() ? QString(kDefaultTable) : table;
    const QTranslator *translator = key.isEmpty() ? nullptr : translatorFor(tableName);
    const QString text =
        translator ? translator->translate(tableName.toUtf8().constData(), key.toUtf8().constData())
                   : QString();
    if (!text.isEmpty())
        return text;
    return fallback.isEmpty() ? key : fallback;
}

QString Bundle::messageLanguage(const QString &identifier)
{
    const QString language = identifier.left(identifier.indexOf(u'-'));
    const QString part = language.left(language.indexOf(u'_'));
    if (part.isEmpty())
        return {};
    if (part != QStringLiteral("zh"))
        return part;
    const bool isMainland = identifier == QStringLiteral("zh_CN") ||
                            identifier == QStringLiteral("zh-CN") ||
                            identifier.startsWith(QStringLiteral("zh-Hans"));
    return isMainland ? QStringLiteral("zh_CN") : QString();
}

/// The message file of the first preferred language, kept once it is loaded; null when there is
/// none.
const QTranslator *Bundle::translatorFor(const QString &table) const
{
    const QString language = messageLanguage(platform::firstPreferredLanguage());
    if (language.isNull())
        return nullptr;
    const QString fileName = table + u'_' + language + QStringLiteral(".qm");
    std::unique_ptr<QTranslator> &translator = translators_[fileName];
    if (!translator) {
        translator = std::make_unique<QTranslator>();
        // QTranslator tries shorter names when a file is missing, so it gets null then.
        (void)translator->load(resourcePath(fileName));
    }
    return translator.get();
}

QString platform::localizedString(const Bundle *bundle, const QString &key)
{
    return bundle ? bundle->localizedString(key) : QString();
}
