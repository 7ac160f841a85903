#ifndef TESSALY_TESTS_END_TO_END_PROCESS_TREE_H_
#define TESSALY_TESTS_END_TO_END_PROCESS_TREE_H_

#include <QByteArray>
#include <QList>

namespace tessaly::test {

// Processes as the kernel lists them. One that has ended and only waits for its parent to take
// notice is gone.

[[nodiscard]] bool IsAlive(qint64 process);
// Children, their children and so on.
[[nodiscard]] QList<qint64> DescendantsOf(qint64 process);
// The executable's file name.
[[nodiscard]] QByteArray NameOf(qint64 process);
// A file of the process in /proc, as "cmdline" or "maps".
[[nodiscard]] QByteArray ProcFile(qint64 process, const QByteArray& name);
void KillAll(const QList<qint64>& processes);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_PROCESS_TREE_H_
