#ifndef TESSALY_REFERENCE_BROWSER_FIND_BAR_H_
#define TESSALY_REFERENCE_BROWSER_FIND_BAR_H_

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tessaly {

// A bar to look for a text in the page that is shown. It asks, and shows what was found.
class FindBar : public QWidget {
  Q_OBJECT

public:
  explicit FindBar(QWidget* parent);

  // Takes the keyboard; the text of the last time is there, selected.
  void Begin();
  // Asks for the text's next place, or for the one before.
  void FindNext();
  void FindPrevious();
  // Another page is on its way: what was found belongs to the one before.
  void ForgetPlaces();
  // Of `count` places the one numbered `active`, from 1, is in view.
  void ShowPlaces(int active, int count);

Q_SIGNALS:
  // An empty text looks for nothing.
  void Asked(const QString& text, bool backward);
  void Closed();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QToolButton* AddButton(const QString& name, const QString& caption, const QString& description);
  void txtFind_Change(const QString& text);

  QLineEdit* text_ = nullptr;
  QLabel* places_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_FIND_BAR_H_
