#pragma once

#include <Message_SequenceOfPrinters.hxx>
#include <Standard_Failure.hxx>

#include <mutex>
#include <string>

namespace orvane::step {

/// Open CASCADE keeps its settings and its messages in the process, and its readers are not made for several
/// threads: a session holds them for one caller at a time, silences the messages and sets what the readers
/// rely on (lengths in millimetres, no invented names). What it silenced speaks again afterwards.
class KernelSession {
public:
    KernelSession();
    ~KernelSession();
    KernelSession(const KernelSession&) = delete;
    KernelSession& operator=(const KernelSession&) = delete;

private:
    std::unique_lock<std::mutex> lock_;
    Message_SequenceOfPrinters printers_;
    bool hadAutoNaming_;
};

/// A length in the millimetres of the kernel times this is one in metres.
inline constexpr double kMetresPerMillimetre = 0.001;

/// What a kernel exception says, as one line.
std::string failureText(const Standard_Failure& failure);

} // namespace orvane::step
