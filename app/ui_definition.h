// Constants that the build generates from the files in app/ui/.
#pragma once

#include <glib.h>

// The UI definition: UTF-8, no terminating zero, its length in bytes.
extern const char gnome_tessary_corvane_properties_ui[];
extern const unsigned int gnome_tessary_corvane_properties_ui_len;

// Serialised GdkPixdata, for gdk_pixbuf_new_from_inline with length -1.
extern const guint8 always_allow_pixdata[];
extern const guint8 always_ask_pixdata[];
extern const guint8 always_deny_pixdata[];
extern const guint8 application_16_pixdata[];
extern const guint8 application_24_pixdata[];
extern const guint8 application_48_pixdata[];
