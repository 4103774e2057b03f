#pragma once

#include "easel/window/Hand.h"

namespace easel::window {

/// The layers, top-most first: what is visible and locked is clicked, the current one is chosen, a
/// name is typed over. Two buttons below make a layer and delete the current one.
class LayerList {
public:
    explicit LayerList(Hand& hand) : hand_(hand) {}

    void open(HWND parent, int firstId);
    void place(const RECT& area) const;
    /// Shows what the layers have become.
    void follow();
    /// What the list and its buttons tell their parent. `answer` is what the system gets.
    bool hear(const NMHDR& note, LRESULT& answer);
    bool command(int id);
    /// A name is being typed.
    [[nodiscard]] bool isEditing() const;

private:
    struct Row {
        std::string title;
        bool hidden = false;
        bool locked = false;
        bool current = false;
        int depth = 0;
        bool operator==(const Row&) const = default;
    };
    [[nodiscard]] std::vector<Row> rowsNow() const;
    void show(std::size_t index);
    void click(int index, int column);

    Hand& hand_;
    HWND list_ = nullptr;
    int firstId_ = 0;
    HWND buttons_[2] = {};
    std::vector<Row> rows_;
    bool filling_ = false;
};

} // namespace easel::window
