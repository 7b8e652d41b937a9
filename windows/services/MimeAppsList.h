#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trelonit {

// The text files in which a freedesktop system keeps what opens what: groups in brackets, below
// them lines "key=value;value;". Other programs and the user's own hand write them too, so they are
// changed by the line; comments, order and blanks of all other lines stay.

/// Heads of the groups, as the MIME applications standard names them.
namespace apps_group {
inline constexpr std::string_view Default = "[Default Applications]";
inline constexpr std::string_view Added = "[Added Associations]";
inline constexpr std::string_view Removed = "[Removed Associations]";
inline constexpr std::string_view Cache = "[MIME Cache]";
inline constexpr std::string_view Entry = "[Desktop Entry]";
}  // namespace apps_group

/// The values of the key in this group; none where there is no such key. The last one counts where
/// the key stands twice.
std::vector<std::string> ListedValues(std::string_view text, std::string_view group,
                                      std::string_view key);

/// The line of the programs that open this type by default, without its end; nothing where the list
/// does not name the type.
std::optional<std::string> DefaultLine(std::string_view text, std::string_view mimeType);

/// The values of one line.
std::vector<std::string> ValuesOf(std::string_view line);

/// A line with these values.
std::string LineOf(std::string_view key, const std::vector<std::string>& values);

/// The list with this line in the place of the one that DefaultLine finds; nothing takes the line
/// away, and its group with it where nothing else stands there.
std::string WithDefaultLine(std::string text, std::string_view mimeType,
                            const std::optional<std::string>& line);

}  // namespace trelonit
