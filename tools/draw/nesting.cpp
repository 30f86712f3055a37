#include <algorithm>
#include <map>
#include <vector>

#include "pictures.h"
#include "schema/catalogue.h"
#include "svg.h"

namespace tarn::draw {

namespace {

using namespace schema;

struct Node {
    std::string name, kind, meaning;
    std::size_t column = 0;
    double y = 0;
    std::vector<std::size_t> above;  // nodes that contain it
};

struct Edge {
    std::size_t from, to;
    bool many;
};

class Graph {
public:
    Graph() {
        for (const Bundle *b : bundles) {
            const std::size_t message = add(b->message);  // before the bundle, independent of the order of evaluation
            connect(add(*b), message);
        }
        for (const Message *m : messages) add(*m);
        for (const Record *r : records) add(*r);
    }

    void arrange();
    Svg drawing() const;

private:
    static constexpr double box_height = 24, row = 30, gap = 44;

    struct Column {
        double left = 0, width = 0;
    };

    std::size_t add_node(std::string_view name, const char *kind, std::string_view meaning) {
        const auto [found, is_new] = indices_.try_emplace(std::string(name), nodes_.size());
        if (is_new) nodes_.push_back({std::string(name), kind, std::string(meaning), 0, 0, {}});
        return found->second;
    }
    std::size_t add(const Bundle &b) { return add_node(b.name, "bundle", "a bundle"); }
    std::size_t add(const Message &m) {
        const bool is_new = !indices_.contains(std::string(m.name));
        const std::size_t index = add_node(m.name, "message", "a message");
        if (is_new) connect(index, add(m.payload));
        return index;
    }
    std::size_t add(const Record &r) {
        const bool is_new = !indices_.contains(std::string(r.name));
        const std::size_t index = add_node(r.name, "record", r.meaning);
        for (const Member &m : r.members) {
            if (is_new && m.record != nullptr) connect(index, add(*m.record), m.kind == Kind::array);
        }
        return index;
    }
    void connect(std::size_t from, std::size_t to, bool many = false) {
        for (Edge &e : edges_) {
            if (e.from != from || e.to != to) continue;
            e.many = e.many || many;
            return;
        }
        edges_.push_back({from, to, many});
        nodes_[to].above.push_back(from);
    }
    void put_into_columns();
    std::vector<Column> columns() const;

    std::map<std::string, std::size_t> indices_;
    std::vector<Node> nodes_;
    std::vector<Edge> edges_;
};

// A node is to the right of all nodes that contain it.
void Graph::put_into_columns() {
    for (std::size_t round = 0; round < nodes_.size(); ++round) {
        for (const Edge &e : edges_) {
            nodes_[e.to].column = std::max(nodes_[e.to].column, nodes_[e.from].column + 1);
        }
    }
}

// Nodes are placed at the average height of the nodes that contain them, as far as there is room.
void Graph::arrange() {
    put_into_columns();
    std::size_t last = 0;
    for (const Node &n : nodes_) last = std::max(last, n.column);
    for (std::size_t column = 0; column <= last; ++column) {
        std::vector<std::size_t> inside;
        for (std::size_t i = 0; i < nodes_.size(); ++i) {
            if (nodes_[i].column == column) inside.push_back(i);
        }
        for (const std::size_t i : inside) {
            double sum = 0;
            for (const std::size_t a : nodes_[i].above) sum += nodes_[a].y;
            if (!nodes_[i].above.empty()) nodes_[i].y = sum / static_cast<double>(nodes_[i].above.size());
        }
        std::stable_sort(inside.begin(), inside.end(),
                         [this](std::size_t a, std::size_t b) { return nodes_[a].y < nodes_[b].y; });
        double least = 36;
        for (const std::size_t i : inside) {
            nodes_[i].y = std::max(nodes_[i].y, least);
            least = nodes_[i].y + row;
        }
    }
}

std::string_view short_name(std::string_view name) {
    constexpr std::string_view prefix = "lumo_tarn_";
    return name.starts_with(prefix) ? name.substr(prefix.size()) : name;
}

// A column is as wide as its longest name.
std::vector<Graph::Column> Graph::columns() const {
    std::vector<Column> all;
    for (const Node &n : nodes_) {
        if (all.size() <= n.column) all.resize(n.column + 1);
        all[n.column].width = std::max(all[n.column].width, 7.0 * static_cast<double>(short_name(n.name).size()) + 20);
    }
    double left = 8;
    for (Column &column : all) {
        column.left = left;
        left += column.width + gap;
    }
    return all;
}

Svg Graph::drawing() const {
    Svg svg;
    const std::vector<Column> all = columns();
    const auto left = [&](const Node &n) { return all[n.column].left; };
    const auto width = [&](const Node &n) { return all[n.column].width; };
    svg.text(all.at(0).left, 20, "bundles", "soft");
    svg.text(all.at(1).left, 20, "messages", "soft");
    svg.text(all.at(2).left, 20, "records; a bold line is an array", "soft");
    for (const Edge &e : edges_) {
        const Node &a = nodes_[e.from], &b = nodes_[e.to];
        const double x1 = left(a) + width(a), y1 = a.y + box_height / 2, x2 = left(b), y2 = b.y + box_height / 2;
        const double bend = std::min(60.0, (x2 - x1) / 2);
        svg.path("M" + number(x1) + " " + number(y1) + " C" + number(x1 + bend) + " " + number(y1) + " " +
                     number(x2 - bend) + " " + number(y2) + " " + number(x2) + " " + number(y2),
                 e.many ? "edge many" : "edge", " data-from=\"" + a.name + "\" data-to=\"" + b.name + "\"");
    }
    for (const Node &n : nodes_) {
        svg.open("node " + n.kind, " data-name=\"" + n.name + "\"");
        svg.tooltip(n.name + ": " + n.meaning);
        svg.rectangle(left(n), n.y, width(n), box_height, "box");
        svg.text(left(n) + 10, n.y + 16, short_name(n.name));
        svg.close();
    }
    return svg;
}

}  // namespace

std::string nesting(bool alone) {
    Graph graph;
    graph.arrange();
    const Svg svg = graph.drawing();
    constexpr std::string_view label = "nesting of bundles, messages and records";
    return alone ? svg.alone(label) : svg.inside(label);
}

}  // namespace tarn::draw
