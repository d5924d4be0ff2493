#pragma once

namespace orvane::platform {

/// The kinds of calls on files that this program makes.
enum class FileCall { open, look, read, write, copy, close, link, rename, remove, makeFolder, flush, rights };

/// What a call meets instead of the system.
enum class FileFault {
    none,        ///< nothing: the system answers
    failed,      ///< an input/output error
    full,        ///< a device without room
    interrupted, ///< a signal, before anything was done
    cutShort,    ///< an end after half of the bytes; of calls that move none, nothing
};

/// Asked before each call, and so able to let it fail, or to end the process there: for those who try what
/// becomes of an export then. Null, and without any cost, everywhere else.
using FileCallListener = FileFault (*)(FileCall call);
inline FileCallListener fileCallListener = nullptr;

} // namespace orvane::platform
