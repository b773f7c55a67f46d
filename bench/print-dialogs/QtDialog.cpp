// Qt 6's print dialog, and nothing else.
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  QPrinter printer;
  QPrintDialog dialog(&printer);
  dialog.exec();
}
