#include "mapping/Conduct.h"
#include "mapping/Conversions.h"
#include "mapping/Naming.h"
#include "text/Utf8.h"

#include <ImportDame/AdditionalFile.h>
#include <ImportDame/AdditionalFileCollection.h>
#include <ImportDame/AttributeCollection.h>
#include <ImportDame/Function.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/ProcedureDataType.h>

namespace OdxImport {

namespace {

std::wstring TakeText(Element holder, const char* tag) {
    const Element child = holder.Take(tag);
    return child ? Widen(child.Text()) : std::wstring();
}

void ReadProgram(ImportDame::VFunctionCollection& functions, Element way, const Workspace& workspace) {
    const Element program = way.Taken().Take("PROG-CODE");
    if (!program) {
        workspace.ReportAt(way, Rule::ConversionIncomplete, "COMPUCODE needs a PROG-CODE");
        return;
    }
    ImportDame::VFunction& function = functions.AddNewFunction();
    function.SourceFile().SetPath(TakeText(program, "CODE-FILE").c_str());
    function.SetSyntax(TakeText(program, "SYNTAX").c_str());
    function.SetVersion(TakeText(program, "REVISION").c_str());
    function.SetEntryPoint(TakeText(program, "ENTRYPOINT").c_str());
    function.SetEncryption(TakeText(program, "ENCRYPTION").c_str());
    for (const Element link : Children(program.Take("LIBRARY-REFS"), "LIBRARY-REF"))
        if (const Element library = workspace.Follow(link, Tags::library))
            function.AdditionalFileCollection().AddNewAdditionalFile().SetPath(
                Mention(library.Taken().Take("CODE-FILE").Text()).c_str());
}

} // namespace

void ReadConversion(ImportDame::VProcedureDataType& type, Element method, const Workspace& workspace) {
    const Element forth = method.Child("COMPU-INTERNAL-TO-PHYS"), back = method.Child("COMPU-PHYS-TO-INTERNAL");
    if (!forth && !back)
        workspace.ReportAt(method, Rule::ConversionIncomplete,
                           "COMPUCODE needs COMPU-INTERNAL-TO-PHYS or COMPU-PHYS-TO-INTERNAL");
    if (forth)
        ReadProgram(type.CodedToPhysFunctionCollection(), forth, workspace);
    if (back)
        ReadProgram(type.PhysToCodedFunctionCollection(), back, workspace);
    AddLibraries(type.Attributes(), method, workspace);
}

} // namespace OdxImport
