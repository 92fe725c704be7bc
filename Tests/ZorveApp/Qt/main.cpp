#include <gmock/gmock.h>

#include <QApplication>

int main(int cuantos, char** palabras) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication const aplicacion{cuantos, palabras};
  testing::InitGoogleMock(&cuantos, palabras);
  return RUN_ALL_TESTS();
}
