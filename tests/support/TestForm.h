#pragma once

#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta::test {

/// A bare form of 200 by 200 pixels in the corner of the screen.
class TestForm : public Form {
 public:
  explicit TestForm(HeadlessHost& host, WindowKind kind = WindowKind::Main)
      : Form(host, {.name = "TestForm", .width = 3000, .height = 3000, .window = kind, .centred = false}) {}
};

}  // namespace orvanta::test
