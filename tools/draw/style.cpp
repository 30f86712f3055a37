#include "svg.h"

namespace tarn::draw {

// The colors of the HTML pages.
std::string Svg::style() {
    return R"(<style>
svg { --paper: #ffffff; --ink: #1d2329; --soft: #5d6873; --line: #b9c2ca; --blue: #1f5fae; --violet: #7a3e9d;
  --green: #1c7347; --red: #b3312c; --amber: #8a5a00; --blue-fill: #e6f0fb; --violet-fill: #f3e9f8;
  --green-fill: #e2f4e9; --amber-fill: #fff1cf; --gray-fill: #f1f3f5; }
@media (prefers-color-scheme: dark) {
  svg { --paper: #14181c; --ink: #dde3e8; --soft: #93a0ac; --line: #46515b; --blue: #7db4f5; --violet: #cc9ae6;
    --green: #7ccf9c; --red: #f08d86; --amber: #dfb566; --blue-fill: #1b2c40; --violet-fill: #33233d;
    --green-fill: #1b3325; --amber-fill: #3d3212; --gray-fill: #20262c; }
}
svg { background: var(--paper); }
text { font: 12px system-ui, "DejaVu Sans", "Liberation Sans", Helvetica, Arial, sans-serif; fill: var(--ink); }
.soft { fill: var(--soft); }
.title { font-weight: 600; font-size: 14px; }
.mono { font-family: "DejaVu Sans Mono", "Liberation Mono", Menlo, Consolas, monospace; }
.small { font-size: 11px; }
.middle { text-anchor: middle; }
.end { text-anchor: end; }
.box, .head, .framing, .value, .state, .block { stroke: var(--line); fill: var(--paper); }
.head { fill: var(--violet-fill); }
.framing { fill: var(--gray-fill); }
.value { fill: var(--blue-fill); }
.state { fill: var(--amber-fill); }
.block { fill: var(--green-fill); }
.node .box { stroke: var(--line); }
.bundle .box { fill: var(--gray-fill); }
.message .box { stroke: var(--violet); }
.record .box { stroke: var(--blue); }
.edge { fill: none; stroke: var(--soft); stroke-opacity: .45; }
.edge.many { stroke-width: 2; }
.lens { fill: none; stroke: var(--soft); stroke-dasharray: 3 3; }
.life { fill: none; stroke: var(--line); stroke-width: 2; }
.arrow { fill: none; stroke: var(--ink); stroke-width: 1.5; }
.tip { fill: var(--ink); }
.arrow.bad { stroke: var(--red); }
.tip.bad, .bad-text { fill: var(--red); }
</style>
)";
}

}  // namespace tarn::draw
