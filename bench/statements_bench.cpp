// What the engine adds to a statement before SQLite sees it.
#include <benchmark/benchmark.h>

#include "base/database/sql_text.h"
#include "bench/large_database.h"

namespace ovindra::bench {
namespace {

SqlText LookUp(const std::string& name) {
  return sql("select SC_ID from School_Master where Sc_Name=", quoted(name), " and 1=0");
}

/// A statement seen before, found again and run to its empty result, beside the same one by hand. Their
/// difference is what finding it, binding its value and handing over an empty Recordset cost.
void StatementSeen(benchmark::State& state) {
  const auto database = EmbeddedDatabase::OpenInMemory();
  database->Run(
      WholeStatement("create table School_Master (SC_ID varchar(10) primary key, Sc_Name varchar(100))"));
  const SqlText statement = LookUp("MOTIPUR PRIMARY SCHOOL");
  for (auto _ : state) benchmark::DoNotOptimize(database->Run(statement));
}
BENCHMARK(StatementSeen);

/// Statements never seen before: each has another literal in its fixed text, so each is lexed, parsed, bound,
/// translated and prepared.
void StatementUnseen(benchmark::State& state) {
  const auto database = OpenLarge();
  long number = 0;
  for (auto _ : state) {
    const SqlText statement = WholeStatement(
        "Select b.District_Name,c.State_Name,d.Country_Name from Block_Master a,District_Master "
        "b,State_Master c,"
        "Country_Master d where a.Block_Name='x" +
        std::to_string(++number) +
        "' and a.District_Code=b.District_Code and b.State_Code=c.State_Code and "
        "c.Country_Code=d.Country_Code");
    benchmark::DoNotOptimize(database->Translation(statement));
  }
}
BENCHMARK(StatementUnseen)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
