// SPDX-License-Identifier: MIT
#pragma once

/// What every written report has in common: its style sheet and its script.
namespace twk::report_page {

/// The colours of the kinds of pages come in the places in braces.
inline constexpr const char* style = R"(
:root{color-scheme:light dark;--bg:#fff;--fg:#1c2026;--soft:#5a6370;--line:#d8dde4;--card:#f5f7fa;
{on light}--broken:#b3261e;--poor:#9a5b00;--hint:#40607f}
@media (prefers-color-scheme:dark){:root{--bg:#15181d;--fg:#e6e9ee;--soft:#a3acb8;--line:#363d47;--card:#1e232a;
{on dark}--broken:#ff8f86;--poor:#f0b24c;--hint:#9cc3ea}}
*{box-sizing:border-box}
body{margin:0 auto;padding:24px;max-width:1500px;background:var(--bg);color:var(--fg);
font:15px/1.5 system-ui,"Segoe UI",Roboto,"Noto Sans",sans-serif}
h1{margin:0;font-size:26px}h2{margin:36px 0 10px;font-size:19px}h3{margin:0 0 6px;font-size:15px}
p{margin:4px 0}.soft,.none,caption{color:var(--soft)}
nav a{margin-right:16px}a{color:var(--k1)}
.cards,.charts{display:grid;gap:14px;grid-template-columns:repeat(auto-fill,minmax(150px,1fr))}
.charts{grid-template-columns:repeat(auto-fill,minmax(330px,1fr))}
.cards>div,.charts>figure{margin:0;padding:12px 14px;border:1px solid var(--line);border-radius:8px;background:var(--card)}
.cards b{display:block;font-size:24px;line-height:1.2}
.key{margin:6px 0 12px}.key span{margin-right:16px}
.key svg{display:inline-block;width:11px;height:11px;margin-right:6px}
svg{display:block;width:100%;height:auto}svg text{font:11px system-ui,sans-serif;fill:var(--fg)}
.axis{fill:none;stroke:var(--soft)}
.k0{fill:var(--k0)}.k1{fill:var(--k1)}
.k2{fill:var(--k2)}.k3{fill:var(--k3)}
.finding{margin:0 0 10px;padding:10px 14px;border:1px solid var(--line);border-left:5px solid var(--hint);border-radius:6px}
.finding.broken{border-left-color:var(--broken)}.finding.poor{border-left-color:var(--poor)}
.tag{font-size:12px;font-weight:600;color:var(--hint)}.broken .tag{color:var(--broken)}.poor .tag{color:var(--poor)}
.list{margin:4px 0 0;padding-left:20px;font-size:13px;columns:2 340px;overflow-wrap:anywhere}
.wide{overflow-x:auto}
table{border-collapse:collapse;width:100%;font-size:13px}
th,td{padding:4px 8px;border-bottom:1px solid var(--line);text-align:left;vertical-align:top}
td{overflow-wrap:anywhere}td:first-child{white-space:nowrap}
th{position:sticky;top:0;background:var(--card)}.n{text-align:right;white-space:nowrap}
th button{all:unset;cursor:pointer}th button:focus-visible{outline:2px solid var(--k1)}
th[aria-sort=ascending] button::after{content:" \25B2"}th[aria-sort=descending] button::after{content:" \25BC"}
#filter{margin:0 0 8px;padding:6px 10px;width:min(420px,100%);font:inherit;color:inherit;background:var(--bg);
border:1px solid var(--line);border-radius:6px}
summary{cursor:pointer}details ul{margin:4px 0;padding-left:18px}
@media print{:root{color-scheme:light;--bg:#fff;--fg:#000;--soft:#444;--line:#bbb;--card:#fff;
{on light}--broken:#b3261e;--poor:#9a5b00;--hint:#40607f}
@page{size:A4 landscape;margin:12mm}
body{padding:0;max-width:none;font-size:10pt;-webkit-print-color-adjust:exact;print-color-adjust:exact}
nav,#filter{display:none}th{position:static}table{font-size:7.5pt}th,td{padding:2px 4px}
tr,figure,.finding,.key{break-inside:avoid}h2,h3,.key{break-after:avoid}.wide{overflow:visible}}
)";

/// Sorts the table by a click on a heading, numbers as numbers, and filters its rows by a text.
inline constexpr const char* script = R"(
(function(){
var table=document.getElementById('pages');if(!table)return;
var body=table.tBodies[0],rows=Array.prototype.slice.call(body.rows);
Array.prototype.forEach.call(table.tHead.rows[0].cells,function(th,c){
var b=document.createElement('button');b.type='button';b.textContent=th.textContent;th.textContent='';th.appendChild(b);
var numbers=th.classList.contains('n');
b.onclick=function(){
var down=th.getAttribute('aria-sort')==='ascending';
Array.prototype.forEach.call(table.tHead.rows[0].cells,function(o){o.removeAttribute('aria-sort')});
th.setAttribute('aria-sort',down?'descending':'ascending');
var keyed=rows.map(function(r){var t=r.cells[c].textContent;
return [numbers?(t===''?-Infinity:parseFloat(t)):t.toLowerCase(),r]});
keyed.sort(function(a,b){var d=a[0]<b[0]?-1:a[0]>b[0]?1:0;return down?-d:d});
rows=keyed.map(function(k){return k[1]});
var part=document.createDocumentFragment();rows.forEach(function(r){part.appendChild(r)});body.appendChild(part)}});
var field=document.createElement('input');field.id='filter';field.type='search';
field.placeholder='Filter the pages';field.setAttribute('aria-label','Filter the pages');
table.parentNode.parentNode.insertBefore(field,table.parentNode);
var texts=null,wait=0;
field.oninput=function(){clearTimeout(wait);wait=setTimeout(function(){
if(!texts)texts=new Map(rows.map(function(r){return [r,r.textContent.toLowerCase()]}));
var find=field.value.toLowerCase();
rows.forEach(function(r){r.hidden=find!==''&&texts.get(r).indexOf(find)<0})},120)};
})();
)";

} // namespace twk::report_page
