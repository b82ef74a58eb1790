// Notices to the family's start and failure module. A notice that cannot be given is no reason to do anything else.
#pragma once

#include <exception>
#include <string_view>

namespace vexo_xyz_impl {

/// Name of the command, for the user and in notices.
inline constexpr std::string_view kCommandName = "VEXO_XYZ";

/// The command was started.
void notify_start();

/// Something failed, and the command ends or goes on without it.
void notify_failure(const std::exception& failure);

}  // namespace vexo_xyz_impl
