"""Screenshots of the whole desktop and what they show: the text Tesseract reads on one monitor,
the colour of one pixel."""
import os
import subprocess

WIDTH, HEIGHT = 1280, 800


def screenshot(out, name, env):
    path = f'{out}/{name}.png'
    subprocess.run(['gnome-screenshot', '-f', path], env=env, check=True,
                   stderr=subprocess.DEVNULL)
    return path


def text_on(path, monitor):
    """What Tesseract reads on one monitor of a screenshot."""
    return text_in(path, monitor * WIDTH, WIDTH, HEIGHT)


def text_in(path, x, width, height):
    crop = path[:-4] + f'-{x}.png'
    # Light text on a dark, changing background: grey, larger, stretched, then dark on light.
    subprocess.run(['convert', path, '-crop', f'{width}x{height}+{x}+0',
                    '+repage', '-colorspace', 'Gray', '-resize', '200%', '-level', '20%,70%',
                    '-negate', crop], check=True)
    return subprocess.run(['tesseract', crop, '-'], capture_output=True, text=True,
                          env=dict(os.environ, OMP_THREAD_LIMIT='1')).stdout


def colour_at(path, x, y):
    text = subprocess.run(['convert', path, '-format', f'%[pixel:p{{{x},{y}}}]', 'info:'],
                          capture_output=True, text=True).stdout
    digits = text[text.find('(') + 1:text.find(')')].split(',')
    return tuple(int(float(d)) for d in digits[:3]) if len(digits) >= 3 else None


def both(path, words):
    return all(words in text_on(path, m) for m in (0, 1))
