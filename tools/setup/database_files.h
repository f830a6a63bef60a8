// The two database files of a folder, named for the data sources that they stand for. A file is made under
// another name and takes its own when it is whole, so that a program never finds half a database.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/embedded/embedded_database.h"

namespace ovindra {

enum class Source { kScreening, kHospital };

std::filesystem::path DatabaseFile(const std::filesystem::path& folder, Source source);

/// The script that defines the database.
std::string_view SchemaOf(Source source);

/// How the program reaches the database on a server.
std::string_view ConnectionStringOf(Source source);

/// Opens a file that is there. Fails with one clear text for each reason.
std::unique_ptr<EmbeddedDatabase> OpenDatabase(const std::filesystem::path& folder, Source source);

/// A database in memory with the fresh schema.
std::unique_ptr<EmbeddedDatabase> FreshDatabase(Source source);

/// Fails when one of the two files is there already.
void RequireNoDatabases(const std::filesystem::path& folder);

/// Makes both files, and the folder at need, and lets `fill` put rows into them. When that fails neither is
/// there.
void MakeDatabases(const std::filesystem::path& folder,
                   const std::function<void(Session& screening, Session& hospital)>& fill);

}  // namespace ovindra
