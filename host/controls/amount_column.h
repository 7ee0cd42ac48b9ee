// The column of a grid that shows money.
#pragma once

#include "host/controls/grid.h"

namespace host {

// To the right, negative amounts in red, the sum below unless another footer is named.
inline GridColumn amount_column(const std::string& field, const std::string& title, int width,
                                FooterKind footer = FooterKind::Sum) {
    return {.FieldName = field,
            .Title = title,
            .Width = width,
            .Align = Alignment::Right,
            .Tag = amount_tag,
            .Footer = footer};
}

} // namespace host
