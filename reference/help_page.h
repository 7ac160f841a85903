#ifndef TESSALY_REFERENCE_HELP_PAGE_H_
#define TESSALY_REFERENCE_HELP_PAGE_H_

#include <QTextBrowser>

namespace tessaly {

class HelpBook;

// Shows a help book's pages; pictures and links come from the book and from nowhere else.
class HelpPage : public QTextBrowser {
  Q_OBJECT

public:
  // The book must outlive it.
  HelpPage(const HelpBook& book, QWidget* parent);

  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

protected:
  // Pictures that are wider than the window are shown smaller.
  void resizeEvent(QResizeEvent* event) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
  [[nodiscard]] int WidestPicture() const;

  const HelpBook& book_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_HELP_PAGE_H_
