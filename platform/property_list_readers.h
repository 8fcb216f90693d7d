#pragma once

#include "platform/property_list.h"

#include <QByteArrayView>

/// The two forms of a property list. An invalid QVariant means that the list is damaged or goes
/// over a limit; then nothing of it is used.
namespace platform::property_list_detail {

inline constexpr QByteArrayView kBinaryMagic("bplist00");

[[nodiscard]] QVariant parseXml(const QByteArray &bytes);
[[nodiscard]] QVariant parseBinary(const QByteArray &bytes);

/// What one list may still hold. A value is a container or what stands in one, the root included;
/// keys are none. A level is a container within a container.
class Allowance
{
public:
    [[nodiscard]] bool takeValue() { return values_-- > 0; }
    [[nodiscard]] bool enterLevel() { return levels_-- > 0; }
    void leaveLevel() { ++levels_; }

private:
    int values_ = property_list_limits::values;
    int levels_ = property_list_limits::depth;
};

} // namespace platform::property_list_detail
