// The person's documents folder, where the program leaves papers that were given no place.
#pragma once

#include <QString>

namespace ovindra::desktop {

/// Makes the folder where it is missing.
QString DocumentsFolder();

/// A file of the documents folder that isn't there yet: "Report.pdf", "Report 2.pdf".
QString FreshDocument(const QString& name, const QString& extension);

}  // namespace ovindra::desktop
