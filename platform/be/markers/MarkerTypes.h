#pragma once

#include <be/Export.h>

#include <array>
#include <string_view>

namespace BE {

// The kinds of marker, by the type name a marker carries and a marker file writes.
inline constexpr std::string_view kMarkerType_Comment = "Comment";
inline constexpr std::string_view kMarkerType_Chapter = "Chapter";
inline constexpr std::string_view kMarkerType_Segmentation = "Segmentation";
inline constexpr std::string_view kMarkerType_WebLink = "WebLink";
inline constexpr std::string_view kMarkerType_FlashCuePoint = "FlashCuePoint";

inline constexpr std::array<std::string_view, 5> kMarkerTypes = {
    kMarkerType_Comment, kMarkerType_Chapter, kMarkerType_Segmentation, kMarkerType_WebLink,
    kMarkerType_FlashCuePoint};

BE_API bool IsKnownMarkerType(std::string_view type) noexcept;

} // namespace BE
