#ifndef TESSALY_BACKUP_ANSWERS_FILE_H_
#define TESSALY_BACKUP_ANSWERS_FILE_H_

#include <QString>

namespace tessaly {

class FileOperations;
class Workspace;
struct BankPaths;

// Raises what shows that the file at `path` is not a whole answers file of this program: 53
// missing, 3343 damaged or no database, 3031 another password, 3078 a table missing, 3265 a field
// missing, 3021 too few subjects, 13 or 6 a count that is none.
void RequireAnswersFile(Workspace& workspace, const QString& path, const QString& connect);

// Makes the answers file ready to be replaced: a change of it that was cut off is undone, and no
// journal stays behind that would be taken for the new file's. Raises 70 when another process holds
// the file.
void PrepareToReplace(Workspace& workspace, FileOperations& files, const BankPaths& paths);

}  // namespace tessaly

#endif  // TESSALY_BACKUP_ANSWERS_FILE_H_
