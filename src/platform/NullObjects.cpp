#include "platform/NullObjects.h"

namespace qbsp::platform {

namespace {

class NullTextField final : public TextField {
    void setHidden(bool) override {}

    void setStringValue(std::string_view) override {}
};

class NullButton final : public Button {
    void setHidden(bool) override {}

    void setTitle(std::string_view) override {}

    void setEnabled(bool) override {}

    void setState(ButtonState) override {}

    ButtonState state() const override { return ButtonState::off; }
};

class NullRecorderControl final : public RecorderControl {
    void setHidden(bool) override {}

    void setKeyCombo(const KeyCombo&) override {}

    void setDelegate(RecorderDelegate&) override {}
};

class NullTableColumn final : public TableColumn {
    std::string identifier() const override { return {}; }

    void setHeaderStringValue(std::string_view) override {}
};

class NullTableView final : public TableView {
    TableColumn& tableColumnWithIdentifier(ColumnIdentifier) override { return nullObject<TableColumn>(); }

    void reloadData() override {}

    void selectRow(std::size_t) override {}

    void scrollRowToVisible(std::size_t) override {}
};

/// The one object of a class without state, in the guise of its interface.
template <class Interface, class Null>
Interface& only() {
    static Null object;
    return object;
}

} // namespace

template <>
TextField& nullObject() {
    return only<TextField, NullTextField>();
}

template <>
Button& nullObject() {
    return only<Button, NullButton>();
}

template <>
RecorderControl& nullObject() {
    return only<RecorderControl, NullRecorderControl>();
}

template <>
TableColumn& nullObject() {
    return only<TableColumn, NullTableColumn>();
}

template <>
TableView& nullObject() {
    return only<TableView, NullTableView>();
}

} // namespace qbsp::platform
