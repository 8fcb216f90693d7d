#include "dialog/presets/store_result.h"

#include <cerrno>

namespace dialog {
namespace {

StoreFault faultOf(int error)
{
    switch (error) {
    case 0:
        return StoreFault::Untrusted;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return StoreFault::NoRoom;
    case EACCES:
    case EPERM:
    case EROFS:
        return StoreFault::NotAllowed;
    default:
        return StoreFault::SystemError;
    }
}

} // namespace

StoreResult resultOf(const debuglog::Refusal &refused)
{
    return {faultOf(refused.error), refused.path,
            refused.error ? qt_error_string(refused.error) : QString()};
}

KeptFile readKept(const PrivateFolder &folder, const QString &name, qint64 limit)
{
    using State = KeptFile::State;
    if (!folder.hasFile(name))
        return {};
    if (folder.refusalOf(name))
        return {State::Unusable};
    errno = 0;
    std::optional<QByteArray> bytes = folder.read(name, limit);
    if (bytes)
        return {State::Read, std::move(*bytes)};
    return {errno == EACCES || errno == EPERM ? State::Forbidden : State::Unusable};
}

} // namespace dialog
