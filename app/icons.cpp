#include "app/icons.h"

#include <gtk/gtk.h>

#include "app/ui_definition.h"
#include "model/permissions.h"

namespace {

struct StockIcon {
  PermissionState state;
  const guint8* pixdata;
};

constexpr StockIcon kStockIcons[] = {
    {kPermissionStateAlwaysAllow, always_allow_pixdata},
    {kPermissionStateAlwaysAsk, always_ask_pixdata},
    {kPermissionStateAlwaysDeny, always_deny_pixdata},
};

constexpr const guint8* kWindowIcons[] = {
    application_16_pixdata,
    application_24_pixdata,
    application_48_pixdata,
};

// The caller owns the picture. Its pixels are constants of the program.
GdkPixbuf* NewPicture(const guint8* pixdata) {
  constexpr int kLengthIsInHeader = -1;
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  return gdk_pixbuf_new_from_inline(kLengthIsInHeader, pixdata, FALSE, nullptr);
  G_GNUC_END_IGNORE_DEPRECATIONS
}

}  // namespace

void register_permission_icons() {
  GtkIconFactory* factory = gtk_icon_factory_new();
  for (const StockIcon& icon : kStockIcons) {
    GdkPixbuf* picture = NewPicture(icon.pixdata);
    GtkIconSet* icon_set = gtk_icon_set_new_from_pixbuf(picture);
    gtk_icon_factory_add(factory, ChoiceOrBlock(icon.state).icon, icon_set);
    gtk_icon_set_unref(icon_set);
    g_object_unref(picture);
  }
  gtk_icon_factory_add_default(factory);
  g_object_unref(factory);
}

void set_window_icons() {
  GList* pictures = nullptr;
  for (const guint8* pixdata : kWindowIcons) {
    pictures = g_list_append(pictures, NewPicture(pixdata));
  }
  gtk_window_set_default_icon_list(pictures);
  g_list_free_full(pictures, g_object_unref);
}
