#pragma once
// The groups of rows that bench/run knows. Each fills the table with the rows that its name stands for.

#include "Lab.h"
#include "Table.h"

namespace bench {

void benchUpload(Lab& lab, Table& table);
void benchMemory(Lab& lab, Table& table);
void benchPipeline(Lab& lab, Table& table);
void benchFolder(Lab& lab, Table& table);
void benchFolderEndings(Lab& lab, Table& table);
void benchLog(Lab& lab, Table& table);
void benchLogViewer(Lab& lab, Table& table);
void benchIdle(Lab& lab, Table& table);
void benchBase64(Lab& lab, Table& table);
void benchGrowth(Lab& lab, Table& table);
void benchSyscalls(Lab& lab, Table& table);

}  // namespace bench
