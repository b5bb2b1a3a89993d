#include "host/runtime/DataBaseFile.h"

#include <stdexcept>

#include "InterfacePtr.h"
#include "host/runtime/FileStream.h"
#include "host/runtime/Paths.h"

namespace fs = std::filesystem;

namespace host {

namespace {

/** Class, implementation and size of a record. */
constexpr std::uintmax_t kHeaderSize = 12;

constexpr int32 kSignature = 'L' | 'W' << 8 | 'D' << 16 | 'B' << 24;

/** An integer of the file; false at its end. */
bool Read(IPMStream& stream, uint32& value) {
    int32 number = 0;
    if (stream.XferInt32(number) != 4) return false;
    value = static_cast<uint32>(number);
    return true;
}

void Write(IPMStream& stream, uint32 value) {
    auto number = static_cast<int32>(value);
    stream.XferInt32(number);
}

/** Reads one record of a file in which `left` bytes are left; false when it has not that many. */
bool ReadRecord(IPMStream& stream, std::uintmax_t& left, Records& records) {
    uint32 classID = 0;
    uint32 implementationID = 0;
    uint32 size = 0;
    if (!Read(stream, classID) || !Read(stream, implementationID) || !Read(stream, size) ||
        size > left - kHeaderSize)
        return false;
    Bytes& bytes = records[{classID, implementationID}];
    bytes.resize(size);
    left -= kHeaderSize + size;
    const auto count = static_cast<int32>(size);
    return stream.XferByte(bytes.data(), count) == count;
}

bool ReadAll(IPMStream& stream, std::uintmax_t fileSize, Records& records) {
    uint32 signature = 0;
    if (!Read(stream, signature) || signature != static_cast<uint32>(kSignature)) return false;
    std::uintmax_t left = fileSize - sizeof signature;
    while (left > 0)
        if (!ReadRecord(stream, left, records)) return false;
    return true;
}

}  // namespace

Records ReadRecords(const fs::path& file) {
    Records records;
    if (!fs::exists(file)) return records;
    const InterfacePtr<IPMStream> stream(OpenForReading(file));
    if (!stream) throw std::runtime_error("cannot read " + Utf8FromPath(file));
    if (!ReadAll(*stream.get(), fs::file_size(file), records)) {
        throw std::runtime_error("the application database is damaged: " + Utf8FromPath(file) +
                                 "; without this file the host starts with an empty one");
    }
    return records;
}

bool WriteRecords(const fs::path& file, const Records& records) {
    const InterfacePtr<IPMStream> stream(OpenForWriting(file));
    if (!stream) return false;
    Write(*stream.get(), static_cast<uint32>(kSignature));
    for (const auto& [key, bytes] : records) {
        Write(*stream.get(), key.first);
        Write(*stream.get(), key.second);
        Write(*stream.get(), static_cast<uint32>(bytes.size()));
        Bytes copy = bytes;
        stream->XferByte(copy.data(), static_cast<int32>(copy.size()));
    }
    stream->Close();
    return stream->GetStreamState() != kStreamStateFailure;
}

}  // namespace host
