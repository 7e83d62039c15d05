// How long the workbench takes to come up.

#include "benchmarks/Families.h"
#include "benchmarks/FirstPaint.h"
#include "benchmarks/Harness.h"
#include "benchmarks/Process.h"

namespace benchmarks
{
void MeasureStart(Table& table)
{
    table.Compare({"workbench, start to first paint: against a bare window", 2.5},
                  [] { return SecondsToFirstPaint(ProgramBeside("zenqo-workbench")); },
                  [] { return SecondsToFirstPaint(ProgramBeside("zenqo-bare-window")); }, 15);
}
} // namespace benchmarks
