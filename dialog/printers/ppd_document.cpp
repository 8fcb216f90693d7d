#include "dialog/printers/ppd_document.h"

#include "dialog/printers/ppd_encoding.h"
#include "platform/strings.h"
#include "platform/values.h"

#include <cups/ppd.h>
#include <cups/pwg.h>

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>

#include <sys/mman.h>
#include <unistd.h>

namespace dialog {
namespace {

using platform::decodedUtf8;

// A longer value would make libcups refuse the line.
constexpr double kUsualMargin = 18; // points; where no PPD tells it
constexpr qsizetype kLongestNickName = 200;

std::span<ppd_group_t> groupsOf(const ppd_file_t *ppd)
{
    return {ppd->groups, static_cast<std::size_t>(ppd->num_groups)};
}

std::span<ppd_group_t> groupsOf(const ppd_group_t &group)
{
    return {group.subgroups, static_cast<std::size_t>(group.num_subgroups)};
}

std::span<ppd_option_t> optionsOf(const ppd_group_t &group)
{
    return {group.options, static_cast<std::size_t>(group.num_options)};
}

std::span<ppd_choice_t> choicesOf(const ppd_option_t &option)
{
    return {option.choices, static_cast<std::size_t>(option.num_choices)};
}

template <class Groups, class Visit>
void visitOptions(Groups groups, const Visit &visit)
{
    for (const ppd_group_t &group : groups) {
        for (const ppd_option_t &option : optionsOf(group))
            visit(option);
        visitOptions(groupsOf(group), visit);
    }
}

const ppd_option_t *findOption(ppd_file_t *ppd, const QString &option)
{
    return option.isNull() ? nullptr : ppdFindOption(ppd, option.toUtf8().constData());
}

ppd_choice_t *findChoice(ppd_file_t *ppd, const Choice &choice)
{
    ppd_option_t *option = const_cast<ppd_option_t *>(findOption(ppd, choice.option));
    return option && !choice.choice.isNull()
               ? ppdFindChoice(option, choice.choice.toUtf8().constData())
               : nullptr;
}

/// Whether marking it sets more in libcups' record than the mark.
bool hasOtherEffects(const ppd_choice_t &choice)
{
    const char *option = choice.option->keyword;
    return std::strcmp(option, "PageSize") == 0 || std::strcmp(option, "PageRegion") == 0 ||
           std::strcmp(choice.choice, "Custom") == 0;
}

QString textOr(const char *text, const QString &keyword)
{
    const QString decoded = decodedUtf8(text);
    return decoded.isEmpty() ? keyword : decoded;
}

OptionKind kindOf(const ppd_option_t &option)
{
    switch (option.ui) {
    case PPD_UI_BOOLEAN:
        return OptionKind::Boolean;
    case PPD_UI_PICKMANY:
        return OptionKind::PickMany;
    case PPD_UI_PICKONE:
        break;
    }
    return OptionKind::PickOne;
}

/// libcups adds a choice for values that a person types; it is none of the PPD's.
bool isForTypedValues(ppd_file_t *ppd, const ppd_option_t &option, const ppd_choice_t &choice)
{
    return std::strcmp(choice.choice, "Custom") == 0 && ppdFindCustomOption(ppd, option.keyword);
}

PrinterOption optionFrom(ppd_file_t *ppd, const ppd_option_t &option, const Choices &defaults)
{
    PrinterOption made;
    made.keyword = decodedUtf8(option.keyword);
    made.text = textOr(option.text, made.keyword);
    made.kind = kindOf(option);
    for (const ppd_choice_t &choice : choicesOf(option)) {
        const QString keyword = decodedUtf8(choice.choice);
        if (!isForTypedValues(ppd, option, choice))
            made.choices.push_back({keyword, textOr(choice.text, keyword)});
    }
    for (const Choice &mark : defaults) {
        if (mark.option == made.keyword)
            made.defaults.append(mark.choice);
    }
    return made;
}

OptionGroup groupFrom(ppd_file_t *ppd, const ppd_group_t &group, const Choices &defaults)
{
    OptionGroup made;
    made.name = decodedUtf8(group.name);
    made.text = textOr(group.text, made.name);
    if (made.name.compare(QStringLiteral("InstallableOptions"), Qt::CaseInsensitive) == 0)
        made.kind = GroupKind::Installable;
    visitOptions(std::span(&group, 1), [&](const ppd_option_t &option) {
        made.options.push_back(optionFrom(ppd, option, defaults));
    });
    return made;
}

Choices markedChoices(const ppd_file_t *ppd)
{
    Choices marks;
    visitOptions(groupsOf(ppd), [&](const ppd_option_t &option) {
        for (const ppd_choice_t &choice : choicesOf(option)) {
            if (choice.marked)
                marks.push_back({decodedUtf8(option.keyword), decodedUtf8(choice.choice)});
        }
    });
    return marks;
}

/// Only a regular file is opened: a FIFO would block the dialog.
std::optional<PpdError> unreadable(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return PpdError{path, 0, QStringLiteral("there is no such file")};
    if (!info.isFile())
        return PpdError{path, 0, QStringLiteral("this is no regular file")};
    if (!info.isReadable())
        return PpdError{path, 0, QStringLiteral("the file may not be read")};
    return std::nullopt;
}

bool isNamed(const Choice &mark, const QString &option)
{
    return mark.option.compare(option, Qt::CaseInsensitive) == 0;
}

PpdError lastError(const QString &path)
{
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    return {path, line, QString::fromUtf8(ppdErrorString(status))};
}

/// libcups answers a size of a person's own for the name "Custom" too, then without an area.
std::optional<PaperSize> ownPaperSize(ppd_file_t *ppd, const char *name)
{
    const ppd_size_t *size = name && *name ? ppdPageSize(ppd, name) : nullptr;
    if (!size || size->width <= 0 || size->length <= 0)
        return std::nullopt;
    return PaperSize{QSizeF(size->width, size->length),
                     {size->left, size->length - size->top, size->width - size->right,
                      size->bottom}};
}

const pwg_media_t *standardMedia(const char *name)
{
    for (const auto find : {pwgMediaForPWG, pwgMediaForPPD, pwgMediaForLegacy}) {
        if (const pwg_media_t *media = find(name))
            return media;
    }
    return nullptr;
}

QString nullIfEmpty(const char *choice)
{
    return *choice ? decodedUtf8(choice) : QString();
}

/// The general form stands above the old one, as in libcups.
Constraints readConstraints(const QStringList &generalForm, const ppd_file_t *ppd)
{
    Constraints constraints;
    for (const QString &value : generalForm)
        constraints.push_back(parseConstraint(value));
    if (!constraints.empty())
        return constraints;
    for (const ppd_const_t &pair :
         std::span(ppd->consts, static_cast<std::size_t>(ppd->num_consts)))
        constraints.push_back({{decodedUtf8(pair.option1), nullIfEmpty(pair.choice1)},
                               {decodedUtf8(pair.option2), nullIfEmpty(pair.choice2)}});
    return constraints;
}

} // namespace

QString PpdError::message() const
{
    const QString place = line > 0 ? QStringLiteral("%1:%2").arg(file).arg(line) : file;
    return place + QStringLiteral(": ") + reason +
           QStringLiteral("; correct the file, or choose the PPD of another printer");
}

void PpdDocument::Closer::operator()(ppd_file_t *ppd) const
{
    ppdClose(ppd);
}

PpdDocument::Opened PpdDocument::open(const QString &path)
{
    if (const auto error = unreadable(path))
        return *error;
    Handle ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!ppd)
        return lastError(path);
    return std::unique_ptr<PpdDocument>(new PpdDocument(path, std::move(ppd)));
}

std::unique_ptr<PpdDocument> PpdDocument::withoutOptions(const QString &name)
{
    const QByteArray text = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*NickName: \"" +
                            name.toUtf8().replace('"', '\'').left(kLongestNickName) + "\"\n";
    const int memory = ::memfd_create("ppd", MFD_CLOEXEC);
    const auto size = static_cast<std::size_t>(text.size());
    if (memory < 0 || ::write(memory, text.constData(), size) != text.size() ||
        ::lseek(memory, 0, SEEK_SET) != 0)
        return nullptr;
    Handle ppd(ppdOpenFd(memory)); // closes it
    return ppd ? std::unique_ptr<PpdDocument>(new PpdDocument({}, std::move(ppd))) : nullptr;
}

PpdDocument::PpdDocument(const QString &path, Handle ppd) : path_(path), ppd_(std::move(ppd))
{
    // libcups has turned texts into UTF-8 and leaves the record empty where the file names none.
    if (!ppd_->lang_encoding)
        ppd_->lang_encoding = strdup("UTF-8");
    ppdMarkDefaults(ppd_.get());
    defaults_ = markedChoices(ppd_.get());
    constraints_ = readConstraints(attributeValues("cupsUIConstraints"), ppd_.get());
    rules_ = ConstraintTable(constraints_);
}

PpdDocument::~PpdDocument() = default;

ppd_file_t *PpdDocument::handle() const
{
    return ppd_.get();
}

QString PpdDocument::manufacturer() const
{
    return decodedUtf8(ppd_->manufacturer);
}

QString PpdDocument::modelName() const
{
    return decodedUtf8(ppd_->modelname);
}

QString PpdDocument::nickName() const
{
    return textOr(ppd_->nickname, modelName().isNull() ? QFileInfo(path_).fileName() : modelName());
}

std::optional<PaperSize> PpdDocument::paperSize(const QString &name) const
{
    const QByteArray word = name.toUtf8();
    if (const auto own = ownPaperSize(ppd_.get(), word.constData()))
        return own;
    const pwg_media_t *media = standardMedia(word.constData());
    if (!media)
        return std::nullopt;
    if (const auto own = ownPaperSize(ppd_.get(), media->ppd))
        return own;
    return PaperSize{QSizeF(PWG_TO_POINTS(media->width), PWG_TO_POINTS(media->length)),
                     {kUsualMargin, kUsualMargin, kUsualMargin, kUsualMargin}};
}

bool PpdDocument::isColorless() const
{
    return ppdFindAttr(ppd_.get(), "ColorDevice", nullptr) && !ppd_->color_device;
}

QStringList PpdDocument::attributeValues(const char *name) const
{
    QStringList values;
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd_.get(), name, nullptr); attribute;
         attribute = ppdFindNextAttr(ppd_.get(), name, nullptr))
        values.append(decodedUtf8(attribute->value));
    return values;
}

OptionGroups PpdDocument::groups() const
{
    OptionGroups groups;
    for (const ppd_group_t &group : groupsOf(ppd_.get()))
        groups.push_back(groupFrom(ppd_.get(), group, defaults_));
    return groups;
}

/// libcups leaves the texts of attributes in the encoding of the file.
std::vector<PpdAttribute> PpdDocument::attributes(const char *name) const
{
    const char *encoding = encodingName(attributeValues("LanguageEncoding").value(0).toUtf8());
    QStringDecoder decoder(encoding ? encoding : "UTF-8", QStringDecoder::Flag::Stateless);
    std::vector<PpdAttribute> lines;
    for (const ppd_attr_t *line = ppdFindAttr(ppd_.get(), name, nullptr); line;
         line = ppdFindNextAttr(ppd_.get(), name, nullptr))
        lines.push_back(
            {decodedUtf8(line->spec), decoder.decode(line->text), decodedUtf8(line->value)});
    for (PpdAttribute &line : lines) {
        const QString translated = translatedText(name, line.specifier.toUtf8().constData());
        if (!translated.isEmpty())
            line.text = translated;
    }
    return lines;
}

/// Of the language with its country, else of the language. Translations are UTF-8 in any file.
QString PpdDocument::translatedText(const char *name, const char *specifier) const
{
    const QString language =
        platform::firstPreferredLanguage().replace(u'-', u'_').section(u'.', 0, 0);
    for (const QString &tried : {language, language.section(u'_', 0, 0)}) {
        const QByteArray keyword = tried.toUtf8() + '.' + name;
        const ppd_attr_t *line = ppdFindAttr(ppd_.get(), keyword.constData(), specifier);
        if (line && *line->text)
            return decodedUtf8(line->text);
    }
    return {};
}

PrinterOption PpdDocument::option(const QString &keyword) const
{
    const ppd_option_t *found = findOption(ppd_.get(), keyword);
    return found ? optionFrom(ppd_.get(), *found, defaults_) : PrinterOption();
}

QStringList PpdDocument::options() const
{
    QStringList keywords;
    visitOptions(groupsOf(ppd_.get()),
                 [&](const ppd_option_t &option) { keywords.append(decodedUtf8(option.keyword)); });
    return keywords;
}

QStringList PpdDocument::choices(const QString &option) const
{
    QStringList keywords;
    if (const ppd_option_t *found = findOption(ppd_.get(), option)) {
        for (const ppd_choice_t &choice : choicesOf(*found))
            keywords.append(decodedUtf8(choice.choice));
    }
    return keywords;
}

bool PpdDocument::hasOption(const QString &option) const
{
    return findOption(ppd_.get(), option);
}

bool PpdDocument::isPickMany(const QString &option) const
{
    const ppd_option_t *found = findOption(ppd_.get(), option);
    return found && found->ui == PPD_UI_PICKMANY;
}

bool PpdDocument::hasChoice(const Choice &choice) const
{
    return findChoice(ppd_.get(), choice);
}

QString PpdDocument::optionText(const QString &option) const
{
    const ppd_option_t *found = findOption(ppd_.get(), option);
    return found ? textOr(found->text, decodedUtf8(found->keyword)) : option;
}

QString PpdDocument::choiceText(const Choice &choice) const
{
    const ppd_choice_t *found = findChoice(ppd_.get(), choice);
    return found ? textOr(found->text, decodedUtf8(found->choice)) : choice.choice;
}

QString PpdDocument::marked(const QString &option) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd_.get(), option.toUtf8().constData());
    return choice ? decodedUtf8(choice->choice) : QString();
}

QStringList PpdDocument::allMarked(const QString &option) const
{
    QStringList keywords;
    if (const ppd_option_t *found = findOption(ppd_.get(), option)) {
        for (const ppd_choice_t &choice : choicesOf(*found)) {
            if (choice.marked)
                keywords.append(decodedUtf8(choice.choice));
        }
    }
    return keywords;
}

Choices PpdDocument::marks() const
{
    return markedChoices(ppd_.get());
}

void PpdDocument::mark(const Choice &choice)
{
    if (hasChoice(choice))
        ppdMarkOption(ppd_.get(), choice.option.toUtf8().constData(),
                      choice.choice.toUtf8().constData());
}

void PpdDocument::setMarked(const QString &option, const QStringList &choices)
{
    Choices others = marks();
    std::erase_if(others, [&](const Choice &mark) { return isNamed(mark, option); });
    markExactly(others);
    for (const QString &choice : choices)
        mark({option, choice});
}

void PpdDocument::setMarks(const Choices &marks)
{
    Choices known;
    std::copy_if(marks.begin(), marks.end(), std::back_inserter(known),
                 [&](const Choice &mark) { return hasChoice(mark); });
    Choices all = defaults_;
    std::erase_if(all, [&](const Choice &standing) {
        return std::any_of(known.begin(), known.end(),
                           [&](const Choice &mark) { return isNamed(mark, standing.option); });
    });
    all.insert(all.end(), known.begin(), known.end());
    markExactly(all);
}

/// libcups cannot take a mark back, other than by another one of the same option. It also looks at
/// every constraint after each single mark, which would take part of a second for a large printer.
void PpdDocument::markExactly(const Choices &marks)
{
    cupsArrayClear(ppd_->marked);
    visitOptions(groupsOf(ppd_.get()), [](const ppd_option_t &option) {
        for (ppd_choice_t &choice : choicesOf(option))
            choice.marked = 0;
    });
    for (const Choice &mark : marks) {
        ppd_choice_t *choice = findChoice(ppd_.get(), mark);
        if (!choice || hasOtherEffects(*choice)) {
            this->mark(mark);
        } else if (!choice->marked) {
            choice->marked = 1;
            cupsArrayAdd(ppd_->marked, choice);
        }
    }
    ppdConflicts(ppd_.get()); // tells each option whether it is in conflict
}

Choices PpdDocument::conflictsWith(const Choice &choice) const
{
    return rules_.conflictsWith(choice, MarkTable(marks()));
}

Choices PpdDocument::libcupsResolution(const Choice &wanted) const
{
    int count = 0;
    cups_option_t *options = nullptr;
    const int isFound = cupsResolveConflicts(ppd_.get(), wanted.option.toUtf8().constData(),
                                             wanted.choice.toUtf8().constData(), &count, &options);
    Choices choices;
    for (const cups_option_t &option : std::span(options, static_cast<std::size_t>(count))) {
        if (isFound)
            choices.push_back({decodedUtf8(option.name), decodedUtf8(option.value)});
    }
    cupsFreeOptions(count, options);
    return choices;
}

std::vector<Conflict> PpdDocument::conflicts() const
{
    return rules_.conflicts(MarkTable(marks()));
}

} // namespace dialog
