#include "model/pde_tools.h"

#include "diag/trace.h"
#include "platform/driver_file.h"
#include "platform/property_list.h"
#include "platform/strings.h"
#include "platform/values.h"

using platform::decodedUtf8;

namespace {

constexpr quint16 kUnknownProductYear = 65535;

QString mirrorKey()
{
    return QStringLiteral("mirror");
}

/// UTF-8 bytes for libcups; null for a null string, which matches nothing.
class Keyword
{
public:
    explicit Keyword(const QString &text) : bytes_(text.toUtf8()), isNull_(text.isNull()) {}
    operator const char *() const { return isNull_ ? nullptr : bytes_.constData(); }

private:
    QByteArray bytes_;
    bool isNull_;
};

ppd_option_t *findOption(ppd_file_t *ppd, const char *keyword)
{
    return ppd && keyword ? ppdFindOption(ppd, keyword) : nullptr;
}

ppd_choice_t *findChoice(ppd_option_t *option, const char *keyword)
{
    return option && keyword ? ppdFindChoice(option, keyword) : nullptr;
}

QString stringOf(const ppd_choice_t *choice, ChoiceString flag)
{
    if (!choice)
        return {};
    return decodedUtf8(flag == ChoiceString::Keyword ? choice->choice : choice->text);
}

/// The attribute's value, without a specifier; null when the PPD has none.
const char *attributeValue(ppd_file_t *ppd, const char *name)
{
    const ppd_attr_t *attribute = ppdFindAttr(ppd, name, nullptr);
    return attribute ? attribute->value : nullptr;
}

struct EncodingName
{
    const char *ppdName;
    unsigned long number;
};

// clang-format off
constexpr EncodingName kEncodings[] = {
    {"ISOLatin1",   platform::encoding::isoLatin1},
    {"WindowsANSI", platform::encoding::windowsLatin1},
    {"JIS83-RKSJ",  platform::encoding::shiftJis},
    {"UTF-8",       platform::encoding::utf8},
    {"UTF8",        platform::encoding::utf8},
};
// clang-format on

} // namespace

PDETools2::PDETools2()
{
    KV_TRACE("-[PDETools2 init]");
}

PDETools2::~PDETools2()
{
    KV_TRACE("-[PDETools2 dealloc]");
}

unsigned long PDETools2::getEncodingFromPPD(const ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getEncodingFromPPD:]");
    if (ppd && ppd->lang_encoding) {
        for (const EncodingName &encoding : kEncodings) {
            if (qstrcmp(encoding.ppdName, ppd->lang_encoding) == 0)
                return encoding.number;
        }
    }
    return platform::encoding::macRoman;
}

QString PDETools2::getOptionsDefault(const QString &option, ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getOptionsDefault:withPPD:]");
    const ppd_option_t *found = findOption(ppd, Keyword(option));
    return found ? decodedUtf8(found->defchoice) : QString();
}

QString PDETools2::getOptionsChoice(const QString &choice, ppd_option_t *option,
                                    ChoiceString flag) const
{
    KV_TRACE("-[PDETools2 getOptionsChoice:withOption:andFlag:]");
    return stringOf(findChoice(option, Keyword(choice)), flag);
}

QString PDETools2::getPPDMarkedChoice(const QString &option, ppd_file_t *ppd,
                                      ChoiceString flag) const
{
    KV_TRACE("-[PDETools2 getPPDMarkedChoice:withPPD:andFlag:]");
    const Keyword keyword(option);
    return ppd && keyword ? stringOf(ppdFindMarkedChoice(ppd, keyword), flag) : QString();
}

int PDETools2::getPPDOptionUI(const QString &option, ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getPPDOptionUI:withPPD:]");
    const ppd_option_t *found = findOption(ppd, Keyword(option));
    return found ? static_cast<signed char>(found->ui) : -1;
}

ppd_option_t *PDETools2::getPPDOption(const char *option, ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getPPDOption:withPPD:]");
    return findOption(ppd, option);
}

QString PDETools2::getComponentPath(const QString &attribute, ppd_file_t *ppd,
                                    unsigned long encoding) const
{
    KV_TRACE("-[PDETools2 getComponentPath:withPPD:andEncoding:]");
    const Keyword name(attribute);
    return name ? platform::decoded(attributeValue(ppd, name), encoding) : QString();
}

QString PDETools2::getModelYear(ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getModelYear:]");
    // A trim by character set, not the removal of a prefix: ".../2009" loses its digits' neighbours
    // only, ".../series" loses letters that happen to be in the set.
    const QString trimmed =
        platform::trimmingCharacters(decodedUtf8(attributeValue(ppd, "KorDriverPath")),
                                     QStringLiteral("/Library/Printers/Korvane/"));
    return platform::droppingLastPathComponent(trimmed);
}

QString PDETools2::getModelName(const ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getModelName:]");
    return decodedUtf8(ppd->modelname);
}

QString PDETools2::copyHelpLinkPath(const ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 copyHelpLinkPath:]");
    return QStringLiteral("/Library/Printers/") +
           platform::described(decodedUtf8(ppd->manufacturer)) +
           QStringLiteral("/PDEs/QualityAndMedia.bundle");
}

QString PDETools2::getLocalizedPaperSize(const QString &keyword, ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getLocalizedPaperSize:withPPD:]");
    return stringOf(findChoice(findOption(ppd, "PageSize"), Keyword(keyword)), ChoiceString::Text);
}

bool PDETools2::isRunningOn105OrLater() const
{
    KV_TRACE("-[PDETools2 isRunningOn105OrLater]");
    return true;
}

int PDETools2::OSVersion() const
{
    KV_TRACE("-[PDETools2 OSVersion]");
    std::int32_t response = 0;
    Gestalt(gestaltSystemVersion, &response);
    return response;
}

QString PDETools2::getNickName(ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getNickName:]");
    return decodedUtf8(attributeValue(ppd, "NickName"));
}

QString PDETools2::getPlistPath(ppd_file_t *ppd) const
{
    KV_TRACE("-[PDETools2 getPlistPath:]");
    const QString iconPath = decodedUtf8(attributeValue(ppd, "APPrinterIconPath"));
    if (iconPath.isNull())
        return {};
    const QString folder =
        platform::droppingLastPathComponent(platform::droppingLastPathComponent(iconPath));
    // A printer without a nickname has the file name ".plist".
    return folder + QStringLiteral("/.Config/") + getNickName(ppd) + QStringLiteral(".plist");
}

quint16 PDETools2::getProductYear(const QString &path) const
{
    KV_TRACE("-[PDETools2 getProductYear:]");
    const QVariant list = platform::readPropertyListInRoot(path);
    const QVariant general = platform::valueForKey(list, QStringLiteral("General"));
    const QVariant year = platform::valueForKey(general, QStringLiteral("Product Year"));
    return year.isValid() ? static_cast<quint16>(platform::integerValue(year))
                          : kUnknownProductYear;
}

void PDETools2::setMirrorValueFromPrintSettings(PMPrintSettings settings, bool flag) const
{
    KV_TRACE("-[PDETools2 setMirrorValueFromPrintSettings:withFlag:]");
    const QVariant value = flag ? QVariant(QStringLiteral("true")) : QVariant();
    PMPrintSettingsSetValue(settings, mirrorKey(), value, PMLock::Unlocked);
}

bool PDETools2::getMirrorValueFromPrintSettings(PMPrintSettings settings) const
{
    KV_TRACE("-[PDETools2 getMirrorValueFromPrintSettings:]");
    QVariant value;
    PMPrintSettingsGetValue(settings, mirrorKey(), &value);
    return value.typeId() == QMetaType::QString && value.toString() == QStringLiteral("true");
}
