#include "quality/threshold_formatter.h"

#include "platform/strings.h"

#include <algorithm>

namespace {

constexpr QChar kMinus = u'-';

QString textOf(const QVariant &object)
{
    return object.typeId() == QMetaType::QString ? object.toString() : QString();
}

QString numbered(std::optional<int> number)
{
    return QString::number(number.value_or(0));
}

} // namespace

CharacterSet CharacterSet::charactersInString(const QString &characters)
{
    CharacterSet set;
    set.characters_ = characters;
    return set;
}

CharacterSet CharacterSet::decimalDigits()
{
    CharacterSet set;
    set.hasDecimalDigits_ = true;
    return set;
}

bool CharacterSet::contains(QChar unit) const
{
    return characters_.contains(unit) || (hasDecimalDigits_ && unit.isDigit());
}

ThresholdFormatter::ThresholdFormatter(std::optional<int> minimum, std::optional<int> maximum,
                                       std::optional<int> length,
                                       std::optional<CharacterSet> characterSet,
                                       const QString &emptyValue)
    : m_minimum(minimum), m_maximum(maximum), m_length(length),
      m_characterSet(std::move(characterSet)), m_emptyValue(emptyValue)
{
}

QString ThresholdFormatter::stringForObjectValue(const QVariant &object) const
{
    return textOf(object);
}

AttributedString
ThresholdFormatter::attributedStringForObjectValue(const QVariant &object,
                                                   const QVariantMap &attributes) const
{
    return {textOf(object), attributes};
}

bool ThresholdFormatter::getObjectValue(QVariant *object, const QString &string, QString *) const
{
    *object = string;
    return true;
}

/// Units before the first one that is not allowed. A minus sign is allowed in front only.
qsizetype ThresholdFormatter::allowedLength(const QString &text) const
{
    for (qsizetype i = 0; i < text.size(); ++i)
        if (!m_characterSet->contains(text.at(i)) || (i > 0 && text.at(i) == kMinus))
            return i;
    return text.size();
}

/// The order of the steps is part of the contract: an empty field becomes the minimum rather than
/// the empty value, and a maximum below the minimum loses.
bool ThresholdFormatter::isPartialStringValid(const QString &partial, QString *newString, QString *)
{
    if (!m_characterSet)
        setAllowedCharacters(CharacterSet::decimalDigits());
    QString text = partial;
    bool stands = true;
    const auto replaceIf = [&](bool isWrong, const QString &replacement) {
        text = isWrong ? replacement : text;
        stands = stands && !isWrong;
    };
    const qsizetype allowed = allowedLength(text);
    replaceIf(allowed < text.size(), text.left(allowed));
    replaceIf(m_maximum && platform::integerValue(text) > *m_maximum, numbered(m_maximum));
    replaceIf(m_minimum && platform::integerValue(text) < *m_minimum, numbered(m_minimum));
    replaceIf(m_length && text.size() > *m_length, text.left(std::max(m_length.value_or(0), 0)));
    replaceIf(text == QLatin1String("-0"), QStringLiteral("0"));
    replaceIf(!m_emptyValue.isNull() && text.isEmpty(), m_emptyValue);
    replaceIf(text.size() >= 2 && text.startsWith(u'0'), text.mid(1));
    *newString = text;
    return stands;
}
