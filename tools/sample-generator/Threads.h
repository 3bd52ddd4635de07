#pragma once

#include "Sewing.h"

/** The threads that the samples share. */
namespace Threads {

struct Thread
{
    unsigned int rgb;
    const char *name;
    const char *number;
};

inline constexpr Thread Ivory = {0xf3ead3, "Ivory", "1010"};
inline constexpr Thread Silver = {0xb9c0c6, "Silver", "1015"};
inline constexpr Thread Slate = {0x55626e, "Slate", "1030"};
inline constexpr Thread Ink = {0x2b3440, "Ink", "1040"};
inline constexpr Thread Blush = {0xf2b8b5, "Blush", "1110"};
inline constexpr Thread Coral = {0xe8735e, "Coral", "1120"};
inline constexpr Thread Rose = {0xd6456b, "Rose", "1130"};
inline constexpr Thread Crimson = {0xb3202f, "Crimson", "1140"};
inline constexpr Thread Wine = {0x74172b, "Wine", "1150"};
inline constexpr Thread Butter = {0xfbe08a, "Butter", "1210"};
inline constexpr Thread Gold = {0xf2b632, "Gold", "1220"};
inline constexpr Thread Amber = {0xe0861f, "Amber", "1230"};
inline constexpr Thread Cinnamon = {0xa9602f, "Cinnamon", "1310"};
inline constexpr Thread Walnut = {0x6b4226, "Walnut", "1320"};
inline constexpr Thread Cocoa = {0x42291b, "Cocoa", "1330"};
inline constexpr Thread Lime = {0xa9c94f, "Lime", "1410"};
inline constexpr Thread Leaf = {0x5d9e3f, "Leaf", "1420"};
inline constexpr Thread Forest = {0x2f6b3a, "Forest", "1430"};
inline constexpr Thread Spruce = {0x1f4b3a, "Spruce", "1440"};
inline constexpr Thread Mint = {0x9fd6c2, "Mint", "1510"};
inline constexpr Thread Teal = {0x2f8f94, "Teal", "1520"};
inline constexpr Thread Petrol = {0x1d5c6b, "Petrol", "1530"};
inline constexpr Thread Ice = {0xa8d8ee, "Ice", "1610"};
inline constexpr Thread Sky = {0x5aa9dc, "Sky", "1620"};
inline constexpr Thread Royal = {0x2b62b3, "Royal", "1630"};
inline constexpr Thread Navy = {0x1d3566, "Navy", "1640"};
inline constexpr Thread Lilac = {0xc3a6dd, "Lilac", "1710"};
inline constexpr Thread Violet = {0x7e55b0, "Violet", "1720"};
inline constexpr Thread Plum = {0x4f2a72, "Plum", "1730"};

inline void use(Sewing &sewing, const Thread &thread)
{
    sewing.thread(thread.rgb, QString::fromLatin1(thread.name), QString::fromLatin1(thread.number));
}

} // namespace Threads
