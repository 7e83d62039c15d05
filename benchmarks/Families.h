#pragma once

namespace benchmarks
{
class Table;

/// Each measures one family of figures and adds them to the table.
///@{
void MeasureGrids(Table& table);
void MeasureNumberGrids(Table& table);
void MeasureTrees(Table& table);
void MeasureConsole(Table& table);
void MeasurePickers(Table& table);
void MeasureVariablePickers(Table& table);
void MeasureEquations(Table& table);
void MeasureStart(Table& table);
void MeasureImport(Table& table);
void MeasureData(Table& table);
void MeasureAnalysis(Table& table);
void MeasureEstimation(Table& table);
void MeasureOutside(Table& table);
///@}
} // namespace benchmarks
