# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Help and About, from the build and from an installed tree that was moved: the pages are files
that the user's browser gets, and their links lead somewhere."""

import html.parser
import pathlib
import shutil
import subprocess
import urllib.parse

import case
import driver
from driver import Program, content, search, wait_for

PAGES = {
    "Tovarel Help": "index.html",
    "Home Page": "index.html",
    "About the Authors": "maker.html",
    "Privacy Policy": "privacy.html",
    "Report a Problem": "ticket.html",
}


class Links(html.parser.HTMLParser):
    def __init__(self, page):
        super().__init__()
        self.found = []
        self.feed(page.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        self.found += [value for name, value in attrs if name in ("href", "src")]


class Help(case.Case):
    def setUp(self):
        # The user's browser, as far as the program can see.
        self.opened = self.session.folder / "opened"
        browser = self.session.folder / "bin" / "xdg-open"
        browser.parent.mkdir(exist_ok=True)
        browser.write_text(f'#!/bin/sh\necho "$1" >> "{self.opened}"\n')
        browser.chmod(0o755)
        self.opened.unlink(missing_ok=True)
        self.browser = {"PATH": f"{browser.parent}:{self.session.environment['PATH']}"}

    def page(self, wanted):
        """The page that the browser was given."""
        url = wait_for(f"the browser to get {wanted}",
                       lambda: self.opened.exists() and self.opened.read_text().strip())
        path = pathlib.Path(urllib.parse.unquote(urllib.parse.urlparse(url).path))
        self.assertEqual(path.resolve(), wanted.resolve())
        return path

    def read_everything(self, folder):
        """Opens every page from the menu; each must come from `folder`."""
        program = Program(self.session, self.browser)
        for item, page in PAGES.items():
            self.opened.unlink(missing_ok=True)
            program.choose("Help", item)
            path = self.page(folder / page)
            links = Links(path).found
            self.assertGreater(len(links), 4)
            for link in links:
                self.assertTrue((path.parent / link).is_file(), f"{page}: {link}")
        self.assertEqual(program.end(), 0)

    def test_the_pages_open_from_the_build(self):
        self.read_everything(self.session.build / "help")

    def test_the_pages_open_in_the_users_language(self):
        program = Program(self.session, {**self.browser, "LANGUAGE": "de"})
        program.choose("Hilfe", "Tovarel – Hilfe")
        page = self.page(self.session.build / "help" / "de" / "index.html")
        for link in Links(page).found:
            self.assertTrue((page.parent / link).is_file(), link)
        self.assertEqual(program.end(), 0)

    def test_the_pages_open_from_an_installed_tree_that_was_moved(self):
        session = self.session
        built, first, moved = session.build, session.folder / "first", session.folder / "moved here"
        subprocess.run(["cmake", "--install", built, "--prefix", first], check=True,
                       stdout=subprocess.DEVNULL, timeout=driver.PATIENCE)
        shutil.move(first, moved)
        session.build = moved / "bin"
        try:
            self.read_everything(moved / "share" / "tovarel" / "help")
        finally:
            session.build = built

    def test_without_a_browser_help_says_where_it_lies(self):
        program = Program(self.session, {"PATH": str(self.session.folder / "nothing here")})
        program.choose("Help", "Tovarel Help")
        self.assertIn(str(self.session.build / "help" / "index.html"), program.dismiss_alert("Error"))
        self.assertEqual(program.end(), 0)

    def test_about_says_which_version_and_which_tools(self):
        program = Program(self.session)
        program.choose("Tovarel", "About Tovarel")
        about = program.await_control("alert", "About Tovarel")
        text = "\n".join(content(label) for label in search(about, "label"))
        self.assertRegex(text, r"Version \d+\.\d+\.\d+")
        for tool in ("ffmpeg", "img2webp"):
            self.assertIn(f"{tool}: {shutil.which(tool) or 'not found'}", text)
        program.press("Close")
        wait_for("About to close", lambda: not program.find("alert"))
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
