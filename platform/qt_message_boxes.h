#ifndef TESSALY_PLATFORM_QT_MESSAGE_BOXES_H_
#define TESSALY_PLATFORM_QT_MESSAGE_BOXES_H_

#include "platform/message_boxes.h"

namespace tessaly {

// Message boxes on the screen, owned by the window in front.
class QtMessageBoxes : public MessageBoxes {
public:
  BoxAnswer Show(const QString& text, const QString& title, BoxIcon icon,
                 BoxButtons buttons) override;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_QT_MESSAGE_BOXES_H_
