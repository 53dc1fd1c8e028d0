#pragma once

#include <KoLogging/Logging.h>

/// The records that the host's log was given.
class Reports {
public:
    /// How many of them hold the text.
    unsigned int Count(const wchar_t* text) const { return CountOfRecords(text); }
};
