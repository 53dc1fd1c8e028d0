#ifndef ODXTESTS_SUPPORT_SAMPLE_H
#define ODXTESTS_SUPPORT_SAMPLE_H

#include "support/Imports.h"

namespace OdxTests {

/// The coolant pump, imported once from its archive.
Imported& Sample();

} // namespace OdxTests

#endif
