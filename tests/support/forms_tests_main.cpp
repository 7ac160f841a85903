#include <gtest/gtest.h>

#include <QApplication>

#include "app/picture.h"

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  // The build asks for the tests' names where there may be no screen.
  if (GTEST_FLAG_GET(list_tests)) {
    return RUN_ALL_TESTS();
  }
  const QApplication application(argc, argv);
  tessaly::RegisterPictures();
  return RUN_ALL_TESTS();
}
