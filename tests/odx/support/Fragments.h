#ifndef ODXTESTS_SUPPORT_FRAGMENTS_H
#define ODXTESTS_SUPPORT_FRAGMENTS_H

#include <ImportDame/DataType.h>

#include <string>

namespace OdxTests {

/// A DIAG-CODED-TYPE of the standard length.
std::string Coded(const std::string& base, int bits, const std::string& inner = "");

/// What is between the coded and the physical type stands in `method`, what is behind them in `tail`.
std::string Dop(const std::string& name, const std::string& coded, const std::string& physical,
                const std::string& method = "<CATEGORY>IDENTICAL</CATEGORY>", const std::string& tail = "");

std::string Dictionary(const std::string& dops, const std::string& more = "");

/// One way of a COMPU-METHOD with these scales.
std::string Method(const std::string& category, const std::string& scales,
                   const std::string& way = "COMPU-INTERNAL-TO-PHYS");

/// COMPU-RATIONAL-COEFFS of "1 2" and "3": (1 + 2 x) / 3. No denominator for an empty one.
std::string Coefficients(const std::string& numerator, const std::string& denominator = "");

/// "[1,9]physical" for each invalid range, in the order of these texts: the collection is ordered by addresses.
std::wstring Ranges(ImportDame::VDataType& type);

} // namespace OdxTests

#endif
