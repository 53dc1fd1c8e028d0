#ifndef CONSOLEIMPORT_WRITTENFILES_H
#define CONSOLEIMPORT_WRITTENFILES_H

#include "Arguments.h"

#include <string>

namespace ConsoleImport {

/// Why a file that is to be written must not be, beginning with its option: it is an input, is or may
/// be one of a folder's by its name, or is to be written twice. Empty when all is well.
std::string ConflictOfWrittenFiles(const Arguments& arguments);

} // namespace ConsoleImport

#endif
