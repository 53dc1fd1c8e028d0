#include "mapping/Scales.h"

#include "mapping/Limits.h"
#include "xml/Walk.h"

#include <ImportDame/Conversion.h>

#include <string>

namespace OdxImport {

std::vector<Element> TakeScales(Element method, const char* direction, bool isNeeded, const Workspace& workspace) {
    std::vector<Element> scales;
    const Element way = method.Child(direction);
    if (const Element list = way.Child("COMPU-SCALES")) {
        way.Taken();
        for (const Element scale : Children(list.Taken(), "COMPU-SCALE"))
            scales.push_back(scale.Taken());
    }
    if (scales.empty() && isNeeded)
        workspace.ReportAt(method, Rule::ConversionIncomplete,
                           "the category " + std::string(method.Child("CATEGORY").Text()) + " needs a COMPU-SCALE in " +
                               direction);
    return scales;
}

void PassOver(Element scale, const char* reason) {
    WalkElements(scale, [reason](Element at, std::uint32_t) {
        at.Refuse(reason);
        return true;
    });
}

void ReadInverseValue(ImportDame::VConversion& conversion, Element scale) {
    if (const Element value = TakeValue(scale.Take("COMPU-INVERSE-VALUE")))
        conversion.SetCompuInverseValue(ValueOf(value.Text()));
}

Element TakeValue(Element holder) {
    const Element number = holder.Take("V");
    return number ? number : holder.Take("VT");
}

} // namespace OdxImport
