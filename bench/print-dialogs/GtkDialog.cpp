// GTK 3's print dialog, and nothing else.
#include <gtk/gtkunixprint.h>

int main(int argc, char **argv) {
  gtk_init(&argc, &argv);
  GtkWidget *const dialog = gtk_print_unix_dialog_new("Print", nullptr);
  gtk_dialog_run(GTK_DIALOG(dialog));
  gtk_widget_destroy(dialog);
}
