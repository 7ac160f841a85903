#ifndef TESSALY_TESTS_END_TO_END_PRINT_QUEUE_H_
#define TESSALY_TESTS_END_TO_END_PRINT_QUEUE_H_

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace tessaly::test {

// A printing service (CUPS) of its own on this machine's loopback, with one printer, the default,
// whose every job becomes a PDF file.
class PrintQueue {
public:
  enum class PaperSize { Letter, A4 };

  explicit PrintQueue(PaperSize paper = PaperSize::Letter);
  PrintQueue(const PrintQueue&) = delete;
  PrintQueue& operator=(const PrintQueue&) = delete;
  ~PrintQueue();

  // Why there is no queue; empty when there is one.
  [[nodiscard]] QString WhyNot() const { return whyNot_; }
  // For CUPS_SERVER, "127.0.0.1:port".
  [[nodiscard]] QString Server() const;

  void Stop() { Administer(QStringLiteral("cupsdisable"), {kPrinter}); }
  void Start() { Administer(QStringLiteral("cupsenable"), {kPrinter}); }
  void Reject() { Administer(QStringLiteral("cupsreject"), {kPrinter}); }
  void Remove() { Administer(QStringLiteral("lpadmin"), {QStringLiteral("-x"), kPrinter}); }
  // From now on every job fails on its way to the printer.
  void BreakPrinter();

  // The last job's PDF; removes it.
  [[nodiscard]] QByteArray TakePrinted();

private:
  static const QString kPrinter;

  void Configure(PaperSize paper);
  [[nodiscard]] bool StartService();
  bool Administer(const QString& command, const QStringList& arguments);
  [[nodiscard]] QString PathOf(const QString& name) const { return folder_.filePath(name); }

  // Not below /dev, where the service takes a file for a device.
  QTemporaryDir folder_{QStringLiteral("/tmp/tessaly-queue-XXXXXX")};
  quint16 port_ = 0;
  QProcess service_;
  QString whyNot_;
};

// Ends a test that cannot do without the queue.
#define SKIP_WITHOUT_QUEUE(queue)                   \
  if (!(queue).WhyNot().isEmpty()) {                \
    GTEST_SKIP() << (queue).WhyNot().toStdString(); \
  }                                                 \
  static_assert(true, "a semicolon follows")

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_PRINT_QUEUE_H_
