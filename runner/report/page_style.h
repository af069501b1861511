#pragma once

namespace vtlcmd::runner {

/// The look of the report page, in the light or dark colours of the reader's screen. Series and
/// states have colours that differ in lightness too, for eyes that don't tell hues apart.
inline constexpr const char* pageStyle = R"css(
:root { color-scheme: light dark; --text: #1c2128; --faint: #626b78; --line: #dfe3e8;
  --page: #ffffff; --box: #f5f6f8; --good: #0b6e4f; --error: #b3261e; --warning: #8a5300;
  --s0: #1f5fa8; --s1: #c4570a; --s2: #00806a; --s3: #93397c; --band: #1f5fa826; }
@media (prefers-color-scheme: dark) { :root { --text: #e3e7ed; --faint: #98a2b0; --line: #313947;
  --page: #12161c; --box: #1b212a; --good: #5fd0a2; --error: #ff8a80; --warning: #f0b454;
  --s0: #79b0f2; --s1: #ffa057; --s2: #53d3b6; --s3: #e39bd0; --band: #79b0f226; } }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 84rem; padding: 2rem clamp(1rem, 4vw, 3rem) 4rem;
  background: var(--page); color: var(--text);
  font: 15px/1.5 system-ui, -apple-system, "Segoe UI", "Noto Sans", sans-serif;
  font-variant-numeric: tabular-nums; }
h1 { margin: 0; font-size: 1.75rem; line-height: 1.2; font-weight: 650; overflow-wrap: anywhere; }
h2 { margin: 2.5rem 0 .75rem; font-size: 1.15rem; font-weight: 650; }
h3 { margin: 0; font-size: 1rem; font-weight: 600; overflow-wrap: anywhere; }
p { margin: .3rem 0; }
code, pre { font-family: ui-monospace, "Cascadia Mono", "DejaVu Sans Mono", monospace;
  font-size: .85rem; }
pre { margin: 0; white-space: pre-wrap; overflow-wrap: anywhere; tab-size: 4; }
.facts, .type, .none { color: var(--faint); }
.type { font-weight: 400; }
.summary { margin: .6rem 0 1.2rem; display: flex; flex-wrap: wrap; gap: .3rem 1rem;
  align-items: baseline; }
.state { border-radius: 1rem; padding: .05rem .8rem; border: 1px solid; font-weight: 600; }
.state.succeeded::before { content: "✓ "; } .state.failed::before { content: "✕ "; }
.state.interrupted::before { content: "◐ "; }
.succeeded { color: var(--good); }
.failed, .critical, .error { color: var(--error); }
.interrupted, .warning { color: var(--warning); }
.verbose, .debug { color: var(--faint); }
.about { margin: 0; display: grid; gap: .7rem 2rem;
  grid-template-columns: repeat(auto-fit, minmax(15rem, 1fr)); }
dt { color: var(--faint); font-size: .8rem; }
dd { margin: 0; overflow-wrap: anywhere; }
.command { margin: 1rem 0 0; padding: .6rem .9rem; background: var(--box); border-radius: .4rem;
  overflow-wrap: anywhere; white-space: pre-wrap; }
.command span { white-space: nowrap; }
table { border-collapse: collapse; }
th, td { text-align: left; vertical-align: top; padding: .2rem 1.2rem .2rem 0; }
th { font-weight: 500; }
.log { width: 100%; }
.log tr, .texts tr { border-top: 1px solid var(--line); }
.log th, .texts th { color: var(--faint); font-weight: 400; min-width: 9rem; max-width: 18rem; }
.log td { white-space: nowrap; }
.log .text { width: 100%; white-space: pre-wrap; overflow-wrap: anywhere; }
.texts { width: 100%; margin-top: .4rem; }
.texts td { width: 100%; }
article { border-top: 1px solid var(--line); padding: 1rem 0 1.2rem; display: grid;
  grid-template-columns: 12rem minmax(0, 1fr); gap: .5rem 2rem; }
h3 .type { display: block; font-size: .85rem; }
article > div { display: grid; gap: 1rem; justify-items: start; grid-template-columns: minmax(0, 1fr); }
.plots, .pictures, article details { width: 100%; }
.numbers th { color: var(--faint); font-size: .85rem; }
.numbers { display: block; max-width: 100%; overflow-x: auto; }
.numbers td, .numbers th { padding: .1rem 1.6rem .1rem 0; vertical-align: baseline; }
.numbers td, .numbers th[scope=col] { text-align: right; }
.numbers th[scope=row]:empty, .numbers td:first-child { padding: 0; }
.plots, .pictures { display: grid; gap: 1.4rem 2.2rem;
  grid-template-columns: repeat(auto-fit, minmax(min(100%, 17rem), 1fr)); }
figure { margin: 0; min-width: 0; max-width: 38rem; }
figcaption b { font-weight: 500; }
figcaption b + .facts { margin-left: .4rem; }
.pictures figure:not(.points) { max-width: 28rem; }
figcaption { margin-bottom: .45rem; font-size: .85rem; }
.key { color: var(--faint); margin-left: .6rem; white-space: nowrap; }
.key:first-child { margin-left: 0; }
.key::before { content: ""; display: inline-block; width: 1rem; height: 0; margin-right: .35rem;
  vertical-align: .25em; border-top: 2px solid var(--series); }
.s0, .avg { --series: var(--s0); } .s1 { --series: var(--s1); } .s2 { --series: var(--s2); }
.s3 { --series: var(--s3); }
.min, .max { --series: color-mix(in srgb, var(--s0) 55%, transparent); }
.plot { display: grid; grid-template-columns: 4.4rem minmax(0, 1fr); column-gap: .5rem;
  font-size: .75rem; line-height: 1; color: var(--faint); padding-right: 1rem; }
.plot svg { height: 8rem; width: 100%; overflow: visible; }
.x, .y { position: relative; }
.x { grid-column: 2; height: 1.2rem; margin-top: .45rem; }
.x span { position: absolute; transform: translateX(-50%); white-space: nowrap; }
.y span { position: absolute; right: 0; transform: translateY(-50%); white-space: nowrap; }
path { fill: none; stroke: var(--series); stroke-width: 1.8; stroke-linecap: round;
  stroke-linejoin: round; vector-effect: non-scaling-stroke; }
path.min, path.max { stroke-width: 1; }
path.dot { stroke-width: 5; }
path.grid { stroke: var(--line); stroke-width: 1; }
path.band { fill: var(--band); stroke: none; }
path.bars { fill: var(--s0); stroke: none; }
path.bars.bad { fill: var(--error); }
figure.points { max-width: 64rem; grid-column: 1 / -1; }
.views { display: grid; gap: 1rem 1.5rem;
  grid-template-columns: repeat(auto-fit, minmax(min(100%, 11rem), 1fr)); font-size: .8rem; }
.view { grid-template-columns: 2.8rem minmax(0, 1fr); margin-top: .4rem; }
.view svg { height: auto; aspect-ratio: 1; }
path.points { stroke: var(--s0); stroke-width: 4; } path.many { stroke-width: 2; }
.lane { margin-top: .8rem; display: flex; flex-wrap: wrap; gap: 0 .8rem; font-size: .85rem; }
.lane b { font-weight: 500; }
.lanes .plot { grid-template-columns: 4.4rem minmax(0, 1fr); margin-top: .4rem; }
.lanes svg { height: 3rem; }
details { min-width: 0; }
summary { cursor: pointer; color: var(--faint); }
summary:hover { color: var(--text); }
@media (max-width: 46rem) {
  article { grid-template-columns: minmax(0, 1fr); }
  h3 .type { display: inline; }
  .log tr { display: block; padding: .3rem 0; } .log th, .log td { display: block; padding: 0; }
  .log th { max-width: none; }
  .plot { grid-template-columns: 3.4rem minmax(0, 1fr); }
}
)css";

}  // namespace vtlcmd::runner
