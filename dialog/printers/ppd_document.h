#pragma once

#include "dialog/printers/constraint_table.h"
#include "dialog/printers/option_groups.h"
#include "dialog/printers/paper_size.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

typedef struct ppd_file_s ppd_file_t;

namespace dialog {

/// Why a PPD was refused, as "FILE:LINE: reason; remedy". Line 0 means that no line is to blame.
struct PpdError
{
    QString file;
    int line = 0;
    QString reason;

    [[nodiscard]] QString message() const;
};

/// An attribute line of a PPD, "*Name Specifier/Text: Value". What it lacks is empty.
struct PpdAttribute
{
    QString specifier;
    QString text; ///< as a person reads it, in the user's language where the PPD has it so
    QString value;
};

/// A printer's PPD, opened by libcups with its defaults marked: what can be chosen and what is.
///
/// Look-ups are libcups' own, which ignore case; texts and keywords are decoded as UTF-8. Answers
/// about an option or choice that the PPD does not have are null or empty.
class PpdDocument
{
public:
    using Opened = std::variant<std::unique_ptr<PpdDocument>, PpdError>;
    [[nodiscard]] static Opened open(const QString &path);
    /// A printer of which nothing but its name is known: its queue has no PPD. Has no path.
    [[nodiscard]] static std::unique_ptr<PpdDocument> withoutOptions(const QString &name);
    ~PpdDocument();
    PpdDocument(const PpdDocument &) = delete;
    PpdDocument &operator=(const PpdDocument &) = delete;

    /// Borrowed by the panels.
    [[nodiscard]] ppd_file_t *handle() const;
    [[nodiscard]] const QString &path() const { return path_; }
    /// Keeps something alive with which the file at path() would go.
    void holdFile(std::shared_ptr<void> file) { file_ = std::move(file); }
    [[nodiscard]] QString manufacturer() const;
    [[nodiscard]] QString modelName() const;
    [[nodiscard]] QString nickName() const;
    /// Values of every attribute line of that name, in the file's order.
    [[nodiscard]] QStringList attributeValues(const char *name) const;
    /// The same lines whole. Translations ("*de.Name ...") are those that libcups has kept for the
    /// language of the process.
    [[nodiscard]] std::vector<PpdAttribute> attributes(const char *name) const;

    /// By the PPD's own name or a standard one ("A4", "iso_a4_210x297mm"), sizes of a person's own
    /// included ("Custom.100x200mm"). Nothing for an unknown name.
    [[nodiscard]] std::optional<PaperSize> paperSize(const QString &name) const;
    /// Whether the PPD says that the printer has no colours.
    [[nodiscard]] bool isColorless() const;

    /// Every option in its group; subgroups count to the group that they stand in. Values that a
    /// person can type are not among the choices.
    [[nodiscard]] OptionGroups groups() const;
    /// One option; without choices where it is unknown.
    [[nodiscard]] PrinterOption option(const QString &keyword) const;
    [[nodiscard]] QStringList options() const;
    [[nodiscard]] QStringList choices(const QString &option) const;
    [[nodiscard]] bool hasOption(const QString &option) const;
    /// Whether several choices of the option can stand at a time.
    [[nodiscard]] bool isPickMany(const QString &option) const;
    [[nodiscard]] bool hasChoice(const Choice &choice) const;
    /// What a person reads; the keyword itself where the PPD has no text.
    [[nodiscard]] QString optionText(const QString &option) const;
    [[nodiscard]] QString choiceText(const Choice &choice) const;

    /// Null when nothing is marked; the first one where several are.
    [[nodiscard]] QString marked(const QString &option) const;
    /// Every marked choice of an option.
    [[nodiscard]] QStringList allMarked(const QString &option) const;
    /// Every marked choice, in the order of the PPD; a pick-many option has one entry per choice.
    [[nodiscard]] Choices marks() const;
    /// The same for the defaults; independent of what is marked.
    [[nodiscard]] const Choices &defaults() const { return defaults_; }
    /// Does nothing for an unknown option or choice. Adds to what is marked of a pick-many option.
    void mark(const Choice &choice);
    /// Marks these choices of an option and no others of it; the unknown ones are left out.
    void setMarked(const QString &option, const QStringList &choices);
    /// Marks these and no others of the options that they name; the other options get their
    /// defaults. The unknown ones are left out.
    void setMarks(const Choices &marks);

    /// Marked choices that would be forbidden beside this one; what is forbidden without it does
    /// not count. Marks nothing.
    [[nodiscard]] Choices conflictsWith(const Choice &choice) const;
    [[nodiscard]] const Constraints &constraints() const { return constraints_; }
    [[nodiscard]] const ConstraintTable &rules() const { return rules_; }
    /// What libcups would choose, beside what is marked, to make way for a choice; nothing where it
    /// knows no way.
    [[nodiscard]] Choices libcupsResolution(const Choice &wanted) const;
    /// Every forbidden pair among what is marked, each pair once.
    [[nodiscard]] std::vector<Conflict> conflicts() const;

private:
    struct Closer
    {
        void operator()(ppd_file_t *ppd) const;
    };
    using Handle = std::unique_ptr<ppd_file_t, Closer>;

    PpdDocument(const QString &path, Handle ppd);
    void markExactly(const Choices &marks);
    [[nodiscard]] QString translatedText(const char *name, const char *specifier) const;

    QString path_;
    std::shared_ptr<void> file_;
    Handle ppd_;
    Choices defaults_;
    Constraints constraints_;
    ConstraintTable rules_; ///< the same
};

} // namespace dialog
