#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

/// Characters that a text may hold, by UTF-16 unit.
class CharacterSet
{
public:
    [[nodiscard]] static CharacterSet charactersInString(const QString &characters);
    /// Every Unicode decimal digit of one unit.
    [[nodiscard]] static CharacterSet decimalDigits();

    [[nodiscard]] bool contains(QChar unit) const;

private:
    CharacterSet() = default;

    QString characters_;
    bool hasDecimalDigits_ = false;
};

struct AttributedString
{
    QString text;
    QVariantMap attributes;
};

/// Keeps a numeric text field to a short integer within bounds while a person types. Works on
/// strings only: the field's object value is its text. Each field that is not held is not checked.
class ThresholdFormatter
{
public:
    ThresholdFormatter() = default;
    ThresholdFormatter(std::optional<int> minimum, std::optional<int> maximum,
                       std::optional<int> length, std::optional<CharacterSet> characterSet,
                       const QString &emptyValue);

    /// The object itself when it is a string, else null.
    [[nodiscard]] QString stringForObjectValue(const QVariant &object) const;
    [[nodiscard]] AttributedString
    attributedStringForObjectValue(const QVariant &object, const QVariantMap &attributes) const;
    /// Stores the string itself; always true, never writes @p error.
    bool getObjectValue(QVariant *object, const QString &string, QString *error) const;
    /// Judges what a person typed: true when it stands, false when @p newString replaces it;
    /// @p newString is written in either case, @p error never. The first check of a formatter
    /// without character set gives it the decimal digits.
    bool isPartialStringValid(const QString &partial, QString *newString, QString *error);

    [[nodiscard]] std::optional<CharacterSet> characterSet() const { return m_characterSet; }
    void setAllowedCharacters(std::optional<CharacterSet> set) { m_characterSet = std::move(set); }
    [[nodiscard]] std::optional<int> minimum() const { return m_minimum; }
    void setMinimum(std::optional<int> minimum) { m_minimum = minimum; }
    [[nodiscard]] std::optional<int> maximum() const { return m_maximum; }
    void setMaximum(std::optional<int> maximum) { m_maximum = maximum; }
    [[nodiscard]] std::optional<int> length() const { return m_length; }
    void setLength(std::optional<int> length) { m_length = length; }

private:
    [[nodiscard]] qsizetype allowedLength(const QString &text) const;

    std::optional<int> m_minimum;
    std::optional<int> m_maximum;
    std::optional<int> m_length;
    std::optional<CharacterSet> m_characterSet;
    QString m_emptyValue;
};
