#ifndef TESSALY_TESTS_END_TO_END_AGENT_WINDOW_COMMANDS_H_
#define TESSALY_TESTS_END_TO_END_AGENT_WINDOW_COMMANDS_H_

#include <QStringList>
#include <stdexcept>

namespace tessaly::test {

// What a user could not do or see: a control that is missing, hidden, disabled or behind a dialog.
class Refusal : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

// Windows, controls and menu items go by their object names. Both kinds of command raise Refusal.
using ReadCommand = QStringList (*)(const QStringList& arguments);
using ActCommand = void (*)(const QStringList& arguments);

// Null for a name that is none.
[[nodiscard]] ReadCommand FindReadCommand(const QString& name);
[[nodiscard]] ActCommand FindActCommand(const QString& name);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_AGENT_WINDOW_COMMANDS_H_
