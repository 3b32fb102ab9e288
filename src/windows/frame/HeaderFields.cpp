#include "windows/frame/HeaderFields.h"

#include <QtWidgets>

#include "windows/frame/FieldText.h"

namespace corvane {

HeaderFields::HeaderFields(QWidget& window, AccountHeader& header) {
  const std::pair<const char*, std::string*> names[] = {{"txtName", &header.institution},
                                                        {"txtDepositInst", &header.description},
                                                        {"txtDepositorName", &header.holder},
                                                        {"txtAcctNum", &header.number}};
  for (const auto& [name, text] : names) {
    auto* field = window.findChild<QLineEdit*>(name);
    if (!field) continue;
    fields_.emplace_back(field, text);
    QObject::connect(field, &QLineEdit::textChanged, &window,
                     [field, text = text] { *text = TextOf(field); });
  }
}

void HeaderFields::Show() const {
  for (const auto& [field, text] : fields_) SetText(field, *text);
}

}  // namespace corvane
