#ifndef TESSALY_TESTS_SUPPORT_SCOPED_ENVIRONMENT_H_
#define TESSALY_TESTS_SUPPORT_SCOPED_ENVIRONMENT_H_

#include <QByteArray>

namespace tessaly::test {

// Sets an environment variable for as long as it lives.
class ScopedEnvironment {
public:
  ScopedEnvironment(const char* name, const QByteArray& value)
      : name_(name), before_(qgetenv(name)) {
    qputenv(name_, value);
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
  ~ScopedEnvironment() {
    if (before_.isNull()) {
      qunsetenv(name_);
    } else {
      qputenv(name_, before_);
    }
  }

private:
  const char* name_;
  QByteArray before_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_SCOPED_ENVIRONMENT_H_
