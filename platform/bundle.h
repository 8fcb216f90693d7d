#pragma once

#include "platform/export.h"

#include <QString>
#include <QTranslator>
#include <QVariantMap>

#include <map>
#include <memory>

/// A directory with "Contents/Info.plist" (else "Info.plist"), resources and localised strings.
///
/// Localised strings are Qt message files "Contents/Resources/<table>_<language>.qm" with one
/// context, the table's name; the default table is "Localizable". The language is the first
/// preferred language (platform::firstPreferredLanguage()) at the time of the call: its
/// language part ("pt-BR" and "pt" read "pt"), but "zh_CN", "zh-CN" and "zh-Hans..." read "zh_CN"
/// and any other Chinese reads none. A language without a file, as English, has no texts of its
/// own. No text goes through a translator of the application.
class PLATFORM_EXPORT Bundle
{
public:
    /// Null when @p realPath is no directory.
    [[nodiscard]] static std::unique_ptr<Bundle> bundleWithPath(const QString &realPath);
    /// The host program's own bundle. It has no files and its path is null: every key is its own
    /// text.
    [[nodiscard]] static Bundle *mainBundle();

    [[nodiscard]] const QString &path() const { return path_; }
    /// Empty when the bundle has no information dictionary.
    [[nodiscard]] QVariantMap infoDictionary() const;
    /// Real path of a file or folder below "Contents/Resources"; null when there is
    /// none.
    [[nodiscard]] QString resourcePath(const QString &name) const;

    /// The text for @p key: from the table, else @p fallback unless that is empty or null, else the
    /// key itself.
    [[nodiscard]] QString localizedString(const QString &key, const QString &fallback = {},
                                          const QString &table = {}) const;

    /// Name of the message file's language for a language identifier, null for none.
    [[nodiscard]] static QString messageLanguage(const QString &identifier);

private:
    explicit Bundle(const QString &path) : path_(path) {}
    [[nodiscard]] const QTranslator *translatorFor(const QString &table) const;

    QString path_;
    mutable std::map<QString, std::unique_ptr<QTranslator>> translators_;
};

namespace platform {

/// bundle->localizedString(key); null when there is no bundle.
[[nodiscard]] PLATFORM_EXPORT QString localizedString(const Bundle *bundle, const QString &key);

} // namespace platform
