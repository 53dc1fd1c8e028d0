#pragma once

namespace Bench {

void RegisterTroubleCodeBenchmarks();
void RegisterNumberBenchmarks();

} // namespace Bench
