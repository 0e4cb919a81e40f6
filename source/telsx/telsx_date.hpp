// The names in a date (RFC 3261, 25.1).
#pragma once

#include <string_view>

namespace telsx
{

inline constexpr std::string_view monthNames[] = { "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };
inline constexpr std::string_view weekdayNames[] = { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };

} // namespace telsx
