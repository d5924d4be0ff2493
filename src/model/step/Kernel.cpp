#include "model/step/Kernel.h"

#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <XCAFDoc_ShapeTool.hxx>

// What Open CASCADE sets up once in a process and never frees is no leak of this code.
#ifdef __SANITIZE_ADDRESS__
extern "C" const char*
__lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier): the sanitizer's name
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libTK";
}
#endif

namespace orvane::step {

void settleKernel() {
    Message::DefaultMessenger()->ChangePrinters().Clear();
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
}

std::string failureText(const Standard_Failure& failure) {
    std::string text = failure.DynamicType()->Name();
    if (const char* message = failure.GetMessageString(); message != nullptr && *message != '\0') {
        text += ": ";
        text += message;
    }
    for (char& c : text) {
        c = c == '\n' || c == '\r' ? ' ' : c;
    }
    return text;
}

} // namespace orvane::step
