// STEP to .glb as Open CASCADE itself offers it: its reader, its mesher and its writer with their defaults,
// names and colours on, meshed as finely as `orvane export` meshes. Prints the seconds of each step.
//   occ_export FILE.step OUT.glb
#include <BRepBndLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_ProgressRange.hxx>
#include <RWGltf_CafWriter.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <numbers>

namespace {

/// Of the diagonal of a part's box.
constexpr double kDeflectionShare = 0.001;
constexpr double kAngle = 20 * std::numbers::pi / 180;

class Stopwatch {
public:
    void lap(const char* step) {
        const auto now = std::chrono::steady_clock::now();
        std::printf("%-9s %7.2f s\n", step, std::chrono::duration<double>(now - start_).count());
        start_ = now;
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

double deflectionFor(const TopoDS_Shape& shape) {
    Bnd_Box box;
    for (TopExp_Explorer it(shape, TopAbs_FACE); it.More(); it.Next()) {
        BRepBndLib::Add(it.Current(), box, Standard_False);
    }
    return std::max(std::sqrt(box.SquareExtent()) * kDeflectionShare, 1e-5);
}

/// Each part once; its instances share the triangles.
void meshParts(const Handle(XCAFDoc_ShapeTool) & shapes) {
    TDF_LabelSequence products;
    shapes->GetShapes(products);
    for (const TDF_Label& product : products) {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(product);
        if (XCAFDoc_ShapeTool::IsSimpleShape(product) && TopExp_Explorer(shape, TopAbs_FACE).More()) {
            BRepMesh_IncrementalMesh(shape, deflectionFor(shape), Standard_False, kAngle, Standard_True);
        }
    }
}

bool convert(const char* from, const char* to) {
    Stopwatch watch;
    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", document);
    {
        STEPCAFControl_Reader reader;
        if (reader.ReadFile(from) != IFSelect_RetDone) {
            return false;
        }
        watch.lap("parse");
        if (!reader.Transfer(document)) {
            return false;
        }
        watch.lap("transfer");
    }
    meshParts(XCAFDoc_DocumentTool::ShapeTool(document->Main()));
    watch.lap("mesh");
    RWGltf_CafWriter writer(to, Standard_True);
    // The model's millimetres and its z axis become the metres and the y axis of glTF.
    writer.ChangeCoordinateSystemConverter().SetInputLengthUnit(0.001);
    writer.ChangeCoordinateSystemConverter().SetInputCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    if (!writer.Perform(document, TColStd_IndexedDataMapOfStringString(), Message_ProgressRange())) {
        return false;
    }
    watch.lap("write");
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: occ_export FILE.step OUT.glb\n";
        return 2;
    }
    Message::DefaultMessenger()->ChangePrinters().Clear();
    if (!convert(argv[1], argv[2])) {
        std::cerr << "occ_export: failed\n";
        return 1;
    }
    return 0;
}
