// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/window_owners.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace x11 {

namespace {

// Frames hold their client at most this deep; a panel's or a browser's own tree goes deeper, and
// nobody's client is in there.
constexpr int deepestClient = 3;

} // namespace

WindowOwners::WindowOwners(Connection &connection)
    : connection_(connection), ownPid_(ownProcess(connection)) {}

const WindowOwner *WindowOwners::find(xcb_window_t window) const {
    const auto found = entries_.find(window);
    return found != entries_.end() && found->second.known ? &found->second.owner : nullptr;
}

xcb_window_t WindowOwners::clientOf(xcb_window_t window) const {
    const auto found = entries_.find(window);
    return found != entries_.end() ? found->second.client : 0;
}

bool WindowOwners::isManaged(xcb_window_t window) const {
    const auto found = entries_.find(window);
    return found != entries_.end() && found->second.managed;
}

void WindowOwners::onReparent(xcb_window_t window, xcb_window_t parent) {
    std::erase_if(clientOfParent_, [window](const auto &pair) { return pair.second == window; });
    if (parent != connection_.root())
        clientOfParent_[parent] = window;
    // Where the client was and where it is now, someone else owns the window.
    entries_.erase(parent);
    if (const auto top = topOfClient_.find(window); top != topOfClient_.end()) {
        entries_.erase(top->second);
        topOfClient_.erase(top);
    }
}

bool WindowOwners::onProperty(const xcb_property_notify_event_t &event) {
    const Atoms &atoms = connection_.atoms();
    if (event.window == connection_.root()) {
        if (event.atom != atoms.clientList && event.atom != atoms.clientListStacking)
            return false;
        // The window manager has just taken or left a client: what looked unmanaged may not be.
        return std::erase_if(entries_, [](const auto &e) { return !e.second.managed; }) > 0;
    }
    const auto top = topOfClient_.find(event.window);
    if (top == topOfClient_.end() || !tellsOfOwner(connection_, event.atom))
        return false;
    if (const auto entry = entries_.find(top->second); entry != entries_.end())
        entry->second.known = false;
    return true;
}

void WindowOwners::forget(xcb_window_t window) {
    entries_.erase(window);
    clientOfParent_.erase(window);
    std::erase_if(topOfClient_, [window](const auto &pair) {
        return pair.first == window || pair.second == window;
    });
}

void WindowOwners::onResize(xcb_window_t window) {
    if (const auto entry = entries_.find(window);
        entry != entries_.end() && entry->second.client != window)
        entry->second.known = false;
}

bool WindowOwners::onClientResize(xcb_window_t client) {
    const auto top = topOfClient_.find(client);
    if (top == topOfClient_.end() || top->second == client)
        return false;
    onResize(top->second);
    return true;
}

void WindowOwners::settle(std::span<const std::uint32_t> windows) {
    std::vector<xcb_window_t> unknown;
    std::ranges::copy_if(windows, std::back_inserter(unknown),
                         [this](auto window) { return !find(window); });
    if (unknown.empty())
        return;
    std::vector<xcb_window_t> withoutClient;
    std::ranges::copy_if(unknown, std::back_inserter(withoutClient),
                         [this](auto window) { return entries_[window].client == 0; });
    findClients(withoutClient);
    askOwners(unknown);
}

void WindowOwners::setClient(xcb_window_t top, xcb_window_t client, bool managed) {
    Entry &entry = entries_[top];
    entry.client = client;
    entry.managed = managed;
    topOfClient_[client] = top;
}

// Breadth first, a level of all windows at a time, so that waiting does not grow with their number.
void WindowOwners::findClients(const std::vector<xcb_window_t> &tops) {
    std::vector<Node> level;
    level.reserve(tops.size());
    for (const auto top : tops)
        level.push_back({top, top});
    for (int depth = 0; depth <= deepestClient && !level.empty(); ++depth)
        level = searchLevel(level);
    for (const auto top : tops) {
        Entry &entry = entries_[top];
        if (entry.client == 0)
            setClient(top, top, false);
    }
}

std::vector<WindowOwners::Node> WindowOwners::searchLevel(const std::vector<Node> &level) {
    xcb_connection_t *c = connection_.get();
    std::vector<std::pair<xcb_get_property_cookie_t, xcb_query_tree_cookie_t>> cookies;
    cookies.reserve(level.size());
    for (const auto &node : level)
        cookies.emplace_back(xcb_get_property(c, 0, node.window, connection_.atoms().wmState,
                                              XCB_GET_PROPERTY_TYPE_ANY, 0, 0),
                             xcb_query_tree(c, node.window));
    std::vector<Node> next;
    for (std::size_t i = 0; i < level.size(); ++i) {
        const auto [top, window] = level[i];
        const auto state = connection_.reply<xcb_get_property_reply>(cookies[i].first);
        const auto tree = connection_.reply<xcb_query_tree_reply>(cookies[i].second);
        Entry &entry = entries_[top];
        if (entry.managed)
            continue;
        if (state && state->type != XCB_NONE) {
            setClient(top, window, true);
            continue;
        }
        if (const auto known = clientOfParent_.find(window); known != clientOfParent_.end()) {
            setClient(top, known->second, true);
            continue;
        }
        if (entry.client == 0 && connection_.clientBits(window) != connection_.clientBits(top))
            setClient(top, window, false);
        if (!tree)
            continue;
        const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
        for (const auto child : children)
            next.push_back({top, child});
    }
    std::erase_if(next, [this](const Node &node) { return entries_[node.top].managed; });
    return next;
}

void WindowOwners::askOwners(const std::vector<xcb_window_t> &tops) {
    std::vector<OwnerQuestion> questions;
    questions.reserve(tops.size());
    for (const auto top : tops) {
        const auto client = entries_[top].client;
        // What becomes of a child of the root is reported by the root.
        std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        if (client != top)
            mask |= XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_.get(), client, XCB_CW_EVENT_MASK, &mask);
        questions.push_back(askOwner(connection_, top, client));
    }
    for (std::size_t i = 0; i < tops.size(); ++i) {
        const auto found = entries_.find(tops[i]);
        found->second.owner = awaitOwner(connection_, questions[i], ownPid_);
        found->second.known = true;
    }
}

} // namespace x11
