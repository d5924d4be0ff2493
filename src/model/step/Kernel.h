#pragma once

#include <Standard_Failure.hxx>

#include <string>

namespace orvane::step {

/// Sets what the readers rely on (lengths in millimetres, no invented names) and silences the kernel, whose
/// settings and messages belong to the whole process: one that reads a STEP file and does nothing else.
void settleKernel();

/// A length in the millimetres of the kernel times this is one in metres.
inline constexpr double kMetresPerMillimetre = 0.001;

/// What a kernel exception says, as one line.
std::string failureText(const Standard_Failure& failure);

} // namespace orvane::step
