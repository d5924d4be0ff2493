#include "model/step/ParserSession.h"

#include <IFSelect_WorkLibrary.hxx>
#include <Interface_HGraph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Protocol.hxx>
#include <Standard_Failure.hxx>

namespace orvane::step {

bool ParserSession::parse(std::istream& text) {
    const Handle(Interface_Protocol) protocol = Protocol();
    Handle(Interface_InterfaceModel) model;
    try {
        if (WorkLibrary()->ReadStream("model.step", text, model, protocol) != 0 || model.IsNull()) {
            return false;
        }
    } catch (const Standard_Failure&) {
        return false;
    }
    // A model that comes in without a protocol is not checked, and the graph that is there later is kept.
    SetProtocol(nullptr);
    SetModel(model);
    SetProtocol(protocol);
    thegraph = new Interface_HGraph(model, Standard_False);
    InitTransferReader(4);
    return true;
}

} // namespace orvane::step
