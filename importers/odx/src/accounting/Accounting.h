#ifndef ODXIMPORT_ACCOUNTING_ACCOUNTING_H
#define ODXIMPORT_ACCOUNTING_ACCOUNTING_H

#include "OdxImport/Ledger.h"
#include "report/Reporter.h"
#include "xml/XmlDocument.h"

namespace OdxImport {

/// Enters every element of the document into the ledger: what was read as imported, what a mapper left out with its
/// reason, and the rest by what is known of its kind. An element that nobody knows is reported and counts as dropped.
void AccountFor(XmlDocument& document, Ledger& ledger, const Reporter& reporter);

} // namespace OdxImport

#endif
