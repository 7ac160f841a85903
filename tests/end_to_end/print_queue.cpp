#include "tests/end_to_end/print_queue.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

constexpr int kPatienceMilliseconds = 15'000;
constexpr auto kOpenToAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                            QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

constexpr const char* kServiceConfiguration = R"(Listen 127.0.0.1:%1
Browsing Off
DefaultAuthType None
<Location />
Order allow,deny
Allow 127.0.0.1
</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
<Limit All>
Order allow,deny
Allow 127.0.0.1
</Limit>
</Policy>
)";

constexpr const char* kFilesConfiguration = R"(FileDevice Yes
ServerRoot %1/etc
RequestRoot %1/spool
CacheDir %1/cache
StateDir %1/run
TempDir %1/spool/tmp
AccessLog %1/access_log
ErrorLog %1/error_log
PageLog %1/page_log
Sandboxing relaxed
)";

// What a printer says of itself: PDF in, two sizes of paper, a quarter of an inch unprintable.
constexpr const char* kPrinterDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Manufacturer: "Test"
*Product: "(PDF)"
*ModelName: "PDF"
*ShortNickName: "PDF"
*NickName: "PDF"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*cupsFilter2: "application/vnd.cups-pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: %1
*PageSize Letter/US Letter: ""
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: %1
*PageRegion Letter/US Letter: ""
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: %1
*ImageableArea Letter/US Letter: "18 18 594 774"
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: %1
*PaperDimension Letter/US Letter: "612 792"
*PaperDimension A4/A4: "595 842"
)ppd";

void WriteFile(const QString& path, const QString& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

quint16 FreePort() {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  return server.serverPort();
}

QString FindInSystem(const QString& program) {
  return QStandardPaths::findExecutable(program, {u"/usr/sbin"_s, u"/usr/bin"_s});
}

}  // namespace

const QString PrintQueue::kPrinter = u"Test"_s;

PrintQueue::PrintQueue(PaperSize paper) : port_(FreePort()) {
  if (FindInSystem(u"cupsd"_s).isEmpty() || FindInSystem(u"lpadmin"_s).isEmpty()) {
    whyNot_ = u"CUPS is not installed"_s;
    return;
  }
  Configure(paper);
  if (!StartService()) {
    whyNot_ = u"CUPS cannot run here: "_s + QString::fromUtf8(service_.readAll());
    return;
  }
  if (!Administer(u"lpadmin"_s,
                  {u"-p"_s, kPrinter, u"-E"_s, u"-v"_s, u"file:"_s + PathOf(u"out/job.pdf"_s),
                   u"-P"_s, PathOf(u"printer.ppd"_s)}) ||
      !Administer(u"lpadmin"_s, {u"-d"_s, kPrinter})) {
    whyNot_ = u"CUPS takes no printer here"_s;
  }
}

PrintQueue::~PrintQueue() {
  service_.terminate();
  service_.waitForFinished(kPatienceMilliseconds);
}

void PrintQueue::Configure(PaperSize paper) {
  for (const QString& folder : {u"etc/ppd"_s, u"spool/tmp"_s, u"cache"_s, u"run"_s, u"out"_s}) {
    QDir(folder_.path()).mkpath(folder);
  }
  // The service runs its filters as another user when it is started by root.
  QFile::setPermissions(folder_.path(), kOpenToAll);
  QFile::setPermissions(PathOf(u"out"_s), kOpenToAll | QFile::WriteGroup | QFile::WriteOther);
  WriteFile(PathOf(u"etc/cupsd.conf"_s), QString::fromUtf8(kServiceConfiguration).arg(port_));
  WriteFile(PathOf(u"etc/cups-files.conf"_s),
            QString::fromUtf8(kFilesConfiguration).arg(folder_.path()));
  WriteFile(
      PathOf(u"printer.ppd"_s),
      QString::fromUtf8(kPrinterDescription).arg(paper == PaperSize::A4 ? u"A4"_s : u"Letter"_s));
}

bool PrintQueue::StartService() {
  service_.setProcessChannelMode(QProcess::MergedChannels);
  service_.start(FindInSystem(u"cupsd"_s), {u"-f"_s, u"-c"_s, PathOf(u"etc/cupsd.conf"_s), u"-s"_s,
                                            PathOf(u"etc/cups-files.conf"_s)});
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  while (!deadline.hasExpired() && !service_.waitForFinished(50)) {
    QTcpSocket probe;
    probe.connectToHost(QHostAddress::LocalHost, port_);
    if (probe.waitForConnected(100)) {
      return true;
    }
  }
  return false;
}

QString PrintQueue::Server() const {
  return u"127.0.0.1:%1"_s.arg(port_);
}

bool PrintQueue::Administer(const QString& command, const QStringList& arguments) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"CUPS_SERVER"_s, Server());
  process.setProcessEnvironment(environment);
  process.start(FindInSystem(command), arguments);
  return process.waitForFinished(kPatienceMilliseconds) && process.exitCode() == 0;
}

void PrintQueue::BreakPrinter() {
  Administer(u"lpadmin"_s, {u"-p"_s, kPrinter, u"-v"_s, u"file:"_s + PathOf(u"missing/job.pdf"_s)});
}

QByteArray PrintQueue::TakePrinted() {
  QFile job(PathOf(u"out/job.pdf"_s));
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  while (!job.exists() && !deadline.hasExpired()) {
    QThread::msleep(20);
  }
  if (!job.open(QIODevice::ReadOnly)) {
    return {};
  }
  const QByteArray pdf = job.readAll();
  job.remove();
  return pdf;
}

}  // namespace tessaly::test
