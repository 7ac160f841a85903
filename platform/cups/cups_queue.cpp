#include "platform/cups/cups_queue.h"

#include <cups/cups.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// A service that hangs must not hang the program.
constexpr int kConnectMilliseconds = 5000;
constexpr double kAnswerSeconds = 10;

[[noreturn]] void Fail(const QString& reason) {
  throw PrintFailure(reason);
}

struct Closer {
  void operator()(http_t* http) const { httpClose(http); }
  void operator()(cups_dest_t* printer) const { cupsFreeDests(1, printer); }
  void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
  void operator()(ipp_t* message) const { ippDelete(message); }
};

template <typename Handle>
using Owned = std::unique_ptr<Handle, Closer>;

QString OptionOf(const cups_dest_t& printer, const char* name) {
  return QString::fromUtf8(cupsGetOption(name, printer.num_options, printer.options));
}

bool IsStopped(const cups_dest_t& printer) {
  return OptionOf(printer, "printer-state").toInt() == IPP_PSTATE_STOPPED;
}

bool AcceptsJobs(const cups_dest_t& printer) {
  return OptionOf(printer, "printer-is-accepting-jobs") != u"false"_s;
}

double PointsOf(int hundredthsOfMillimetres) {
  constexpr double kHundredthsPerPoint = 2540.0 / 72.0;
  return hundredthsOfMillimetres / kHundredthsPerPoint;
}

// Some queues claim to print up to the edge; a quarter of an inch is what printers manage.
double MarginOf(int hundredthsOfMillimetres) {
  constexpr double kLeastPoints = 18;
  return std::max(PointsOf(hundredthsOfMillimetres), kLeastPoints);
}

Owned<ipp_t> AskForJob(http_t* http, const cups_dest_t& printer, int job) {
  static const char* const kWanted[] = {"job-state", "job-printer-state-message"};
  ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  const QByteArray uri = OptionOf(printer, "printer-uri-supported").toUtf8();
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
  ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2, nullptr,
                kWanted);
  return Owned<ipp_t>(cupsDoRequest(http, request, "/"));
}

QString ReasonIn(ipp_t* answer) {
  ipp_attribute_t* text = ippFindAttribute(answer, "job-printer-state-message", IPP_TAG_TEXT);
  return text == nullptr ? QString() : QString::fromUtf8(ippGetString(text, 0, nullptr));
}

}  // namespace

struct CupsQueue::Connection {
  Owned<http_t> http;
  Owned<cups_dest_t> printer;
  Owned<cups_dinfo_t> info;
};

CupsQueue::CupsQueue() : cups_(std::make_unique<Connection>()) {
  cups_->http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 kConnectMilliseconds, nullptr));
  if (!cups_->http) {
    Fail(u"The printing system does not answer."_s);
  }
  httpSetTimeout(cups_->http.get(), kAnswerSeconds, nullptr, nullptr);
  cups_->printer.reset(cupsGetNamedDest(cups_->http.get(), nullptr, nullptr));
  if (!cups_->printer) {
    Fail(u"There is no default printer."_s);
  }
  cups_->info.reset(cupsCopyDestInfo(cups_->http.get(), cups_->printer.get()));
  if (!cups_->info) {
    Fail(u"The printer %1 does not answer."_s.arg(Name()));
  }
}

CupsQueue::~CupsQueue() = default;

QString CupsQueue::Name() const {
  return QString::fromUtf8(cups_->printer->name);
}

// The library's own notion of the default is letter paper, whatever the queue says.
QByteArray CupsQueue::MediaName() const {
  const QString chosen = OptionOf(*cups_->printer, CUPS_MEDIA);
  if (!chosen.isEmpty()) {
    return chosen.toUtf8();
  }
  ipp_attribute_t* media =
      cupsFindDestDefault(cups_->http.get(), cups_->printer.get(), cups_->info.get(), CUPS_MEDIA);
  return media == nullptr ? QByteArray() : QByteArray(ippGetString(media, 0, nullptr));
}

Paper CupsQueue::DefaultPaper() const {
  cups_size_t size{};
  if (cupsGetDestMediaByName(cups_->http.get(), cups_->printer.get(), cups_->info.get(),
                             MediaName().constData(), 0, &size) == 0) {
    Fail(u"The printer %1 does not name its paper."_s.arg(Name()));
  }
  return {QSizeF(PointsOf(size.width), PointsOf(size.length)),
          QMarginsF(MarginOf(size.left), MarginOf(size.top), MarginOf(size.right),
                    MarginOf(size.bottom))};
}

void CupsQueue::RequireReady() const {
  if (IsStopped(*cups_->printer)) {
    Fail(u"The printer %1 is stopped."_s.arg(Name()));
  }
  if (!AcceptsJobs(*cups_->printer)) {
    Fail(u"The printer %1 does not accept jobs."_s.arg(Name()));
  }
}

int CupsQueue::Submit(const QString& title, const QByteArray& pdf) {
  http_t* http = cups_->http.get();
  cups_dest_t* printer = cups_->printer.get();
  // The positions hold only on a page that is printed at its own size.
  printer->num_options =
      cupsAddOption("print-scaling", "none", printer->num_options, &printer->options);
  const QByteArray name = title.toUtf8();
  int job = 0;
  const bool taken =
      cupsCreateDestJob(http, printer, cups_->info.get(), &job, name.constData(),
                        printer->num_options, printer->options) == IPP_STATUS_OK &&
      cupsStartDestDocument(http, printer, cups_->info.get(), job, name.constData(),
                            CUPS_FORMAT_PDF, 0, nullptr, 1) == HTTP_STATUS_CONTINUE &&
      cupsWriteRequestData(http, pdf.constData(), static_cast<std::size_t>(pdf.size())) ==
          HTTP_STATUS_CONTINUE &&
      cupsFinishDestDocument(http, printer, cups_->info.get()) == IPP_STATUS_OK;
  if (!taken) {
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    Fail(u"The printer %1 does not take the job: %2"_s.arg(Name(), reason));
  }
  return job;
}

bool CupsQueue::IsDone(int job) const {
  const Owned<ipp_t> answer = AskForJob(cups_->http.get(), *cups_->printer, job);
  ipp_attribute_t* state = ippFindAttribute(answer.get(), "job-state", IPP_TAG_ENUM);
  // The service forgets a job that is done where it keeps no history.
  if (state == nullptr || ippGetInteger(state, 0) == IPP_JSTATE_COMPLETED) {
    return true;
  }
  switch (ippGetInteger(state, 0)) {
    case IPP_JSTATE_STOPPED:
    case IPP_JSTATE_CANCELED:
    case IPP_JSTATE_ABORTED:
      Fail(u"The printer %1 gave the job up. %2"_s.arg(Name(), ReasonIn(answer.get())));
    default:
      return false;
  }
}

}  // namespace tessaly
