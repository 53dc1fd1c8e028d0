#ifndef ODXIMPORT_REPORT_SILENCE_H
#define ODXIMPORT_REPORT_SILENCE_H

#include "report/Reporter.h"

namespace OdxImport {

/// For whoever only looks at what is read, and reported, elsewhere.
const Reporter& Silence();

} // namespace OdxImport

#endif
