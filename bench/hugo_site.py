#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes a hugo site of the second-level pages of a finished run.

    hugo_site.py TREE SITE

What differs from page to page is content: body text in a content file, title, description and keywords in its front
matter. What the pages share is layout: head, the list of links to the pages of the same keyword, the end. So hugo has
the same pages to put together, of about the same bytes.
"""
import pathlib
import re
import sys

CONFIG = """baseURL = "http://main.example/"
title = "Bench"
uglyURLs = true
disableKinds = ["taxonomy", "term", "RSS", "sitemap", "robotsTXT", "404", "home", "section"]
[params]
author = "Name"
"""

LAYOUT = """<html><head><title>{{ .Title }}</title>
<meta name="Description" content="{{ .Params.about }}">
<meta name="Keywords" content="{{ .Params.words }}">
<meta name="Author" content="{{ site.Params.author }}">
<meta name="Robot" content="index, follow">
<meta name="Rating" content="General">
<meta name="Language" content="en-us">
<meta name="Generator" content="hugo">
</head>

<body bgcolor="#ffffff">
<!-- url {{ .Permalink }}-->
{{ range .CurrentSection.RegularPages }}<h2><a href="{{ .RelPermalink }}"><b>{{ .Title }}</b></a></h2>
{{ end }}{{ .Content }}
<br><br><hr width=30%>

</body></html>
"""

LINKS = re.compile(r'<h2><a href="[^"]*"><b>[^<]*</b></a></h2>\s*')


def value(name, page):
    found = re.search(rf'<meta name="{name}" content="([^"]*)"', page)
    return found.group(1) if found else ""


def main(tree, site):
    site = pathlib.Path(site)
    (site / "layouts/_default").mkdir(parents=True)
    (site / "config.toml").write_text(CONFIG)
    (site / "layouts/_default/single.html").write_text(LAYOUT)
    for path in sorted(pathlib.Path(tree).rglob("*.htm")):
        keyword = re.match(r"(garden_topic_\d+)_side", path.name)
        if not keyword:
            continue
        page = path.read_bytes().decode("utf-8-sig")
        title = re.search(r"<title>(.*?)</title>", page).group(1)
        body = LINKS.sub("", page[page.index("<body"):page.rindex("<br><br><hr")].split(">", 1)[1])
        content = site / "content" / keyword.group(1) / (path.stem + ".html")
        content.parent.mkdir(parents=True, exist_ok=True)
        front = (f'---\ntitle: "{title}"\nabout: "{value("Description", page)}"\n'
                 f'words: "{value("Keywords", page)}"\n---\n')
        content.write_bytes((front + body).encode())


main(sys.argv[1], sys.argv[2])
