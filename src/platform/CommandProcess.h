#pragma once

namespace orvane {

/// Makes this process a command that ends in an orderly way, first of all: a standard stream that was closed
/// is opened onto nothing, so that no file of ours gets its number, and fails when it is written to; a pipe
/// that nobody reads and a file beyond the limit of its size are told as faults; a signal that ends the
/// process takes its leavings away first.
void settleCommandProcess();

} // namespace orvane
