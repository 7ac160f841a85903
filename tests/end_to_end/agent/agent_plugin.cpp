#include <QGenericPlugin>

#include "tests/end_to_end/agent/ui_agent.h"

namespace tessaly::test {

// Brings the agent into the program as it is shipped: the window library loads the plug-ins that
// QT_QPA_GENERIC_PLUGINS names.
class AgentPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "agent.json")

public:
  QObject* create(const QString&, const QString&) override {
    return new UiAgent(qEnvironmentVariable("TESSALY_AGENT_SOCKET"), this);
  }
};

}  // namespace tessaly::test

#include "agent_plugin.moc"
