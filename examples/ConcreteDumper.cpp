#include "ConcreteDumper.h"

#include <KoLogging/Logging.h>

using namespace ImportDame;
using namespace NArdenaSharedUtil::Logging;

void ConcreteDumper::VisitStaticIterDataType(VStaticIterDataType& dataType) {
    WriteRepetition(L"StaticIterDataType", dataType);
}

void ConcreteDumper::VisitNumeratorIterDataType(VNumeratorIterDataType& dataType) {
    WriteRepetition(L"NumeratorIterDataType", dataType);
}

void ConcreteDumper::VisitEndOfServiceIterDataType(VEndOfServiceIterDataType& dataType) {
    WriteRepetition(L"EndOfServiceIterDataType", dataType);
}

void ConcreteDumper::VisitEndMarkerIterDataType(VEndMarkerIterDataType& dataType) {
    WriteRepetition(L"EndMarkerIterDataType", dataType);
}

void ConcreteDumper::WriteRepetition(const wchar_t* kind, VBasePacketDataType& dataType) {
    VLogging& logging = VLogging::GetInstance();
    if (logging.IsEnabled()) {
        VDecoratedLogRecord record(severityDebug, logging.GetOrCreateGroupId("GroupDimex"));
        record << L"IMPORTDAME DUMP:  " << kind << L": '" << dataType.GetQualifier() << L"'";
        logging.Log(record);
    }
    Dump(dataType.InterchangeableCollection());
}
