#include "platform/PictureStreams.h"

#include <cstdio>

namespace orvane::platform {

namespace {

PictureSource& sourceOf(fi_handle handle) {
    return *static_cast<PictureSource*>(handle);
}

OutputFile& targetOf(fi_handle handle) {
    return *static_cast<OutputFile*>(handle);
}

/// As `fread`: gives the number of whole items.
unsigned DLL_CALLCONV readItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    PictureSource& source = sourceOf(handle);
    const std::size_t wanted = std::size_t{size} * count;
    const auto from = std::min(static_cast<std::size_t>(source.at), source.bytes.size());
    const std::size_t given = source.bytes.copy(static_cast<char*>(buffer), wanted, from);
    source.at += static_cast<std::int64_t>(given);
    source.hasRunOut = source.hasRunOut || given < wanted;
    return size == 0 ? 0 : static_cast<unsigned>(given / size);
}

unsigned DLL_CALLCONV writeItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    const std::string_view text(static_cast<const char*>(buffer), std::size_t{size} * count);
    return targetOf(handle).write(text) ? count : 0;
}

unsigned DLL_CALLCONV readNothing(void*, unsigned, unsigned, fi_handle) {
    return 0;
}

unsigned DLL_CALLCONV writeNothing(void*, unsigned, unsigned, fi_handle) {
    return 0;
}

/// As `fseek`.
int DLL_CALLCONV seekSource(fi_handle handle, long offset, int origin) {
    PictureSource& source = sourceOf(handle);
    const std::int64_t from = origin == SEEK_SET   ? 0
                              : origin == SEEK_CUR ? source.at
                                                   : std::ssize(source.bytes);
    if (from + offset < 0) {
        return -1;
    }
    source.at = from + offset;
    return 0;
}

long DLL_CALLCONV tellSource(fi_handle handle) {
    return static_cast<long>(sourceOf(handle).at);
}

/// A PNG file is written from its start to its end.
int DLL_CALLCONV seekNowhere(fi_handle, long, int) {
    return -1;
}

long DLL_CALLCONV tellTarget(fi_handle handle) {
    return static_cast<long>(targetOf(handle).position());
}

} // namespace

FreeImageIO pictureSourceFunctions() {
    return {readItems, writeNothing, seekSource, tellSource};
}

FreeImageIO pictureTargetFunctions() {
    return {readNothing, writeItems, seekNowhere, tellTarget};
}

} // namespace orvane::platform
