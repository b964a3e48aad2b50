#pragma once

#include "VXFoundationExport.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Vexlor
{

class IVXData;
class IVXError;

/// A file with a position, read and written in pieces. Offsets are 64-bit counts of bytes from the start.
class VX_FOUNDATION_API IVXStorage
{
public:
    /// How a file is opened.
    enum StorageMode : int
    {
        StorageModeRead = 0,  ///< read only; the file must exist
        StorageModeWrite = 1, ///< write only; the file is made, or emptied when it exists
        StorageModeReadWrite =
            2, ///< read and write; the file is made when it does not exist, and kept when it does
    };

    /// Opens the file of that UTF-8 path. Never empty: IsOpen tells whether it worked. The file is closed
    /// with the last handle.
    static std::shared_ptr<IVXStorage> MallocStorage(const std::string& path, StorageMode mode);

    /// True when the file is open. Every other operation of a file that is not open does nothing and fails.
    virtual bool IsOpen() const = 0;
    /// The next size bytes, fewer at the end of the file; the position advances by as many. An empty buffer
    /// at the end or on failure. Memory is asked for only as far as the file reaches.
    virtual std::shared_ptr<IVXData> Read(std::uint32_t size) = 0;
    /// Writes the whole buffer at the position, which advances. Never answers an empty handle.
    virtual std::shared_ptr<IVXError> WriteData(const std::shared_ptr<const IVXData>& data) = 0;
    /// Writes size raw bytes at the position, which advances. Never answers an empty handle.
    virtual std::shared_ptr<IVXError> WriteBytes(const void* bytes, std::uint32_t size) = 0;
    /// Moves the position, beyond the end too; fails, and stays, where the offset is beyond what a file can
    /// have (2^63 - 1). Never answers an empty handle.
    virtual std::shared_ptr<IVXError> Seek(std::uint64_t offset) = 0;
    /// Moves the position to the end of the file.
    virtual void SeekToEnd() = 0;
    /// The file's size now, in bytes; 0 for a new file and for one that is not open.
    virtual std::uint64_t Size() const = 0;
    /// The position, in bytes from the start.
    virtual std::uint64_t Position() const = 0;

protected:
    ~IVXStorage() = default;
};

} // namespace Vexlor
