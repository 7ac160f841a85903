#include <QCoreApplication>
#include <QFileInfo>
#include <QGenericPlugin>
#include <QLocalServer>

#include "tests/end_to_end/agent/ui_agent.h"

namespace tessaly::test {

// Brings the agent into the program as it is shipped: the window library loads the plug-ins that
// QT_QPA_GENERIC_PLUGINS names. A program that the program starts gets an agent too, which listens
// under its name.
class AgentPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "agent.json")

public:
  QObject* create(const QString&, const QString&) override {
    return new UiAgent(SocketPath(), this);
  }

private:
  static QString SocketPath() {
    QString path = qEnvironmentVariable("TESSALY_AGENT_SOCKET");
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    if (program != QStringLiteral("tessaly")) {
      path += u'.' + program;
      // Of one that was killed.
      QLocalServer::removeServer(path);
    }
    return path;
  }
};

}  // namespace tessaly::test

#include "agent_plugin.moc"
