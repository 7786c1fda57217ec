#pragma once

#include <memory>
#include <tuple>
#include <utility>

#include "platform/Form.h"
#include "platform/Host.h"

namespace orvanta {

/// A form by its name. It is loaded when it is first used, and again when it is first used after it was
/// unloaded. It is constructed from its owner and, if several forms have the same class, from what
/// distinguishes them.
template <class FormType, class Owner, class... Design>
class FormSlot {
 public:
  explicit FormSlot(Owner& owner, Design... design) : owner_(owner), design_(std::move(design)...) {}
  FormSlot(const FormSlot&) = delete;
  FormSlot& operator=(const FormSlot&) = delete;

  FormType* operator->() { return &Load(); }
  FormType& operator*() { return Load(); }

  /// The form if it is loaded; it is not loaded by asking.
  FormType* Loaded() const { return form_.get(); }

  void Unload() {
    if (form_) form_->Unload();
  }

 private:
  FormType& Load() {
    if (!form_) {
      form_ = std::apply(
          [this](const Design&... design) { return std::make_unique<FormType>(owner_, design...); }, design_);
      form_->Released = [this] { form_->TheHost().Loop().DeleteLater(std::move(form_)); };
      form_->Form_Load();
    }
    return *form_;
  }

  Owner& owner_;
  const std::tuple<Design...> design_;
  std::unique_ptr<FormType> form_;
};

}  // namespace orvanta
