/// Stands in for the macOS framework of this name where scripts/check-macos compiles without
/// Apple's headers: the few names that the product uses, with their documented signatures, values
/// and deprecations.

#pragma once

#include <stdint.h>

typedef uint8_t UInt8;
typedef uint32_t UInt32;
typedef int32_t OSStatus;
typedef UInt32 OptionBits;
typedef unsigned char Boolean;

enum { noErr = 0 };
enum { kFSPathMakeRefDefaultOptions = 0, kFSPathMakeRefDoNotFollowLeafSymlink = 0x01 };

struct FSRef {
  UInt8 hidden[80];
};

#define STAND_IN_DEPRECATED(since) \
  __attribute__((availability(macos, introduced = since, deprecated = 10.8)))

extern "C" {
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory)
    STAND_IN_DEPRECATED(10.0);
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref,
                                  Boolean* isDirectory) STAND_IN_DEPRECATED(10.4);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize)
    STAND_IN_DEPRECATED(10.0);
}

#undef STAND_IN_DEPRECATED
