#include "dialog/plugins/whole_library.h"

#include <QFile>

#include <elf.h>
#include <link.h>

#include <cstring>

namespace dialog {
namespace {

using FileHeader = ElfW(Ehdr);
using Segment = ElfW(Phdr);

template <class Record>
bool readAt(QFile &file, quint64 offset, Record &record)
{
    return file.seek(static_cast<qint64>(offset)) &&
           file.read(reinterpret_cast<char *>(&record), sizeof record) == sizeof record;
}

/// Without an overflow, whatever the numbers in the file are.
bool liesInside(quint64 offset, quint64 size, quint64 fileSize)
{
    return offset <= fileSize && size <= fileSize - offset;
}

bool isSharedLibrary(const FileHeader &header)
{
    constexpr unsigned char kClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
           header.e_ident[EI_CLASS] == kClass && header.e_type == ET_DYN &&
           header.e_phentsize == sizeof(Segment);
}

bool hasWholeSegments(QFile &file, const FileHeader &header, quint64 fileSize)
{
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        Segment segment;
        if (!readAt(file, header.e_phoff + quint64(i) * sizeof segment, segment) ||
            !liesInside(segment.p_offset, segment.p_filesz, fileSize))
            return false;
    }
    return true;
}

} // namespace

bool isWholeLibrary(const QString &path)
{
    QFile file(path);
    FileHeader header;
    if (!file.open(QIODevice::ReadOnly) || !readAt(file, 0, header) || !isSharedLibrary(header))
        return false;
    const auto size = static_cast<quint64>(file.size());
    const quint64 sections = quint64(header.e_shnum) * header.e_shentsize;
    return liesInside(header.e_phoff, quint64(header.e_phnum) * sizeof(Segment), size) &&
           liesInside(header.e_shoff, sections, size) && hasWholeSegments(file, header, size);
}

} // namespace dialog
