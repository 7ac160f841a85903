#include "tests/end_to_end/process_tree.h"

#include <signal.h>

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace tessaly::test {

bool IsAlive(qint64 process) {
  // The name, which may hold anything, stands in brackets before the state.
  const QByteArray status = ProcFile(process, "stat");
  const QByteArray state = status.mid(status.lastIndexOf(')') + 1).trimmed().left(1);
  return !state.isEmpty() && state != "Z" && state != "X";
}

QList<qint64> DescendantsOf(qint64 process) {
  QList<qint64> descendants;
  const QByteArray id = QByteArray::number(process);
  for (const QByteArray& child : ProcFile(process, "task/" + id + "/children").split(' ')) {
    const qint64 childId = child.trimmed().toLongLong();
    if (childId > 0 && IsAlive(childId)) {
      descendants.append(childId);
      descendants.append(DescendantsOf(childId));
    }
  }
  return descendants;
}

QByteArray NameOf(qint64 process) {
  return QFileInfo(QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process))).fileName().toUtf8();
}

QByteArray ProcFile(qint64 process, const QByteArray& name) {
  QFile file(u"/proc/%1/%2"_s.arg(process).arg(QString::fromLatin1(name)));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void KillAll(const QList<qint64>& processes) {
  for (const qint64 process : processes) {
    ::kill(static_cast<pid_t>(process), SIGKILL);
  }
}

}  // namespace tessaly::test
