#pragma once

namespace vtlcmd::runner {

/// The look of the report page, in the light or dark colours of the reader's screen.
inline constexpr const char* pageStyle = R"css(
:root { color-scheme: light dark; --text: #1d2330; --faint: #667085; --line: #d6dae1;
  --page: #ffffff; --box: #f6f7f9; --good: #1a7f4b; --error: #c0262d; --warning: #9a5b00;
  --s0: #2563c9; --s1: #c2410c; --s2: #1a7f4b; --s3: #8b3fb8; }
@media (prefers-color-scheme: dark) { :root { --text: #e4e7ec; --faint: #98a2b3; --line: #3a4252;
  --page: #14181f; --box: #1c222c; --good: #5bc98c; --error: #ff7b7b; --warning: #f0b454;
  --s0: #7aa8ff; --s1: #ff9a66; --s2: #5bc98c; --s3: #d19bf0; } }
body { margin: 2rem auto; max-width: 72rem; padding: 0 1rem; background: var(--page);
  color: var(--text); font: 15px/1.5 system-ui, sans-serif; }
h1 { margin: 0; font-size: 1.6rem; }
h2 { margin: 2rem 0 .5rem; font-size: 1.15rem; }
h3 { margin: 1rem 0 .25rem; font-size: 1rem; }
code, pre, .log { font-family: ui-monospace, monospace; font-size: .87rem; }
pre { margin: 0; white-space: pre-wrap; overflow-wrap: anywhere; }
.facts, .type, .none { color: var(--faint); }
.state { border-radius: 1rem; padding: .1rem .7rem; border: 1px solid; font-weight: 600; }
.succeeded { color: var(--good); }
.failed, .critical, .error { color: var(--error); }
.interrupted, .warning { color: var(--warning); }
.verbose, .debug { color: var(--faint); }
.log { margin: .25rem 0; padding: 0; list-style: none; white-space: pre-wrap;
  overflow-wrap: anywhere; }
.log b { display: inline-block; min-width: 5.5rem; font-weight: 600; }
.plots { display: flex; flex-wrap: wrap; gap: 1rem; }
figure { margin: 0; padding: .6rem .8rem; background: var(--box); border-radius: .5rem; }
figcaption { margin-bottom: .3rem; }
.key::before { content: ""; display: inline-block; width: .9rem; height: 3px; margin: 0 .3rem 3px
  .5rem; background: var(--series); }
.s0 { --series: var(--s0); } .s1 { --series: var(--s1); } .s2 { --series: var(--s2); }
.s3 { --series: var(--s3); }
.plot { display: grid; grid-template-columns: 5.2rem 15rem; gap: .2rem .5rem; font-size: .8rem;
  color: var(--faint); }
.y, .x { display: flex; justify-content: space-between; }
.y { flex-direction: column; text-align: right; }
.x { grid-column: 2; }
svg { display: block; width: 100%; }
path { fill: none; stroke: var(--series); stroke-width: 1.6; stroke-linecap: round;
  stroke-linejoin: round; }
path.frame { stroke: var(--line); stroke-width: 1; }
details { border-top: 1px solid var(--line); padding: .35rem 0; }
summary { cursor: pointer; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: .2rem .8rem .2rem 0; }
th { font-weight: 600; white-space: nowrap; }
td:last-child { width: 100%; }
)css";

}  // namespace vtlcmd::runner
