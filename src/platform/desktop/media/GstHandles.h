#pragma once

#include <gst/gst.h>

#include <memory>

namespace orvanta {

/// Releases a GStreamer object, message, sample or GLib value when its owner goes out of scope.
struct GstRelease {
  void operator()(GstElement* element) const { gst_object_unref(element); }
  void operator()(GstBus* bus) const { gst_object_unref(bus); }
  void operator()(GstMessage* message) const { gst_message_unref(message); }
  void operator()(GstSample* sample) const { gst_sample_unref(sample); }
  void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
  void operator()(GError* error) const { g_error_free(error); }
  void operator()(char* text) const { g_free(text); }
};

template <class T>
using GstHandle = std::unique_ptr<T, GstRelease>;

/// A new element, with a full reference rather than a floating one; null if its plugin is not installed.
inline GstHandle<GstElement> MakeElement(const char* factory) {
  GstElement* made = gst_element_factory_make(factory, nullptr);
  return GstHandle<GstElement>(made ? GST_ELEMENT(gst_object_ref_sink(made)) : nullptr);
}

}  // namespace orvanta
