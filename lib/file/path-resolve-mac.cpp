#include <CoreServices/CoreServices.h>

#include "path-resolve.h"

// The File Manager is deprecated, but nothing newer resolves a path to its stored spelling without
// following a link at the end.
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

int ResolvePath(const ustring& path, LastComponent last, ustring& resolved) {
  const auto* text = reinterpret_cast<const UInt8*>(path.c_str());
  FSRef ref;
  OSStatus status =
      last == LastComponent::kFollowLink
          ? FSPathMakeRef(text, &ref, nullptr)
          : FSPathMakeRefWithOptions(text, kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
  if (status != noErr) {
    return status;
  }
  UInt8 buffer[4096] = {};
  status = FSRefMakePath(&ref, buffer, sizeof buffer);
  if (status != noErr) {
    return status;
  }
  resolved = reinterpret_cast<const char*>(buffer);
  return 0;
}
