#pragma once

#include "Harness.h"

namespace Fuzz {

/// Imports the bytes as a file of this name and writes what comes of it into a database.
void ImportBytes(Input input, const char* fileName);

} // namespace Fuzz
