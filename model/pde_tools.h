#pragma once

#include "platform/print_objects.h"

#include <cups/ppd.h>

#include <QString>

/// Which string of a PPD choice a query answers with: the keyword is what the PPD and the dialog
/// receive (a setting's ticket), the text is what a person reads (a setting's value).
enum class ChoiceString { Text, Keyword };

/// Stateless queries over the printer's PPD, the driver configuration list and the print settings.
/// Look-ups that fail answer null, -1, 30 or 65535 as each says; nothing is cached, nothing marked.
/// Keywords are matched by libcups, which ignores case. A null keyword matches nothing.
class PDETools2
{
public:
    PDETools2();
    ~PDETools2();

    /// The PPD's text encoding (platform::encoding numbers); Mac OS Roman when unknown or without
    /// PPD.
    [[nodiscard]] unsigned long getEncodingFromPPD(const ppd_file_t *ppd) const;
    /// Default choice keyword; "" when the PPD names none, null without option or PPD.
    [[nodiscard]] QString getOptionsDefault(const QString &option, ppd_file_t *ppd) const;
    [[nodiscard]] QString getOptionsChoice(const QString &choice, ppd_option_t *option,
                                           ChoiceString flag) const;
    [[nodiscard]] QString getPPDMarkedChoice(const QString &option, ppd_file_t *ppd,
                                             ChoiceString flag) const;
    /// 0 boolean, 1 pick-one, 2 pick-many; -1 without option or PPD.
    [[nodiscard]] int getPPDOptionUI(const QString &option, ppd_file_t *ppd) const;
    /// Borrowed from the PPD; null when the printer lacks the option.
    [[nodiscard]] ppd_option_t *getPPDOption(const char *option, ppd_file_t *ppd) const;
    /// An attribute's value, decoded. Needs a PPD.
    [[nodiscard]] QString getComponentPath(const QString &attribute, ppd_file_t *ppd,
                                           unsigned long encoding) const;
    /// Year folder of the driver, from "KorDriverPath". Needs a PPD.
    [[nodiscard]] QString getModelYear(ppd_file_t *ppd) const;
    [[nodiscard]] QString getModelName(const ppd_file_t *ppd) const;
    /// Literal path of the help book's bundle. Needs a PPD.
    [[nodiscard]] QString copyHelpLinkPath(const ppd_file_t *ppd) const;
    [[nodiscard]] QString getLocalizedPaperSize(const QString &keyword, ppd_file_t *ppd) const;
    /// Always true on every host of this system.
    [[nodiscard]] bool isRunningOn105OrLater() const;
    /// Binary-coded decimal, 0x1060 for 10.6.0.
    [[nodiscard]] int OSVersion() const;
    [[nodiscard]] QString getNickName(ppd_file_t *ppd) const;
    /// Literal path of the driver configuration list; null without "APPrinterIconPath". Needs a
    /// PPD.
    [[nodiscard]] QString getPlistPath(ppd_file_t *ppd) const;
    /// 65535 when the list or the year is missing, and when the list lies outside the driver root.
    [[nodiscard]] quint16 getProductYear(const QString &path) const;
    /// Switches the job's mirror setting on, or removes it (it is never "false").
    void setMirrorValueFromPrintSettings(PMPrintSettings settings, bool flag) const;
    [[nodiscard]] bool getMirrorValueFromPrintSettings(PMPrintSettings settings) const;
};
