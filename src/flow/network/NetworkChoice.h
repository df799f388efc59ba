#pragma once

#include "NetworkEntry.h"

#include <optional>
#include <vector>

/// Which network the person means: a row of the list or, once a name was typed, what the fields hold.
class NetworkChoice
{
public:
    using Networks = std::vector<WTWiFiPtr>;

    int row() const { return m_row; }
    /// Whether a name was typed, and since then no row was chosen and no search begun.
    bool editedSSID() const { return m_editedSSID; }
    /// Whether the person chose or typed something since the last search began, which the search's answer must leave
    /// alone.
    bool isTouched() const { return m_touched; }

    void chooseRow(int row);
    void nameTyped();
    void passwordTyped();
    /// A search begins: the first row is the choice until the person chooses or types.
    void beginSearch();
    /// Row 0 again, and a new object for `selectedWiFi`.
    void reset();

    /// The choice, computed on each call into one and the same object: the chosen row, or what the fields hold. A row
    /// behind the list's end leaves the object as it was.
    WTWiFiPtr selectedWiFi(const Networks &networks, const NetworkEntry &fields);

    /// What the fields are to show of the choice: only the first row brings its password. Absent when there are no
    /// networks. An empty name stands for what the field holds already.
    std::optional<NetworkEntry> filledFields(const Networks &networks, const NetworkEntry &fields);

    /// The list has changed: a row that the person chose moves with its network; a first row that nobody chose stays
    /// the first. When the network is gone, its name in the field counts as typed.
    void followNetwork(const Networks &before, const Networks &after);
    /// Whether a stored password that comes now may go into the field: the first row is the choice, and nothing was
    /// typed.
    bool takesLatePassword() const { return m_row == 0 && !m_editedSSID && !m_passwordTyped; }

private:
    WTWiFiPtr m_selectedWiFi;
    int m_row = 0;
    bool m_editedSSID = false;
    bool m_passwordTyped = false; ///< Since the fields were filled last.
    bool m_touched = false;
};
