#!/usr/bin/env python3
"""Runs the recipe of docs/scale.md: 300,000 rows on a cluster of two worker processes, of which one is
killed on the way, must be what one process makes.

Usage: dask_test.py MODULE-FOLDER DOCS-FOLDER
"""
import os
import re
import signal
import sys
import tempfile
import time
from pathlib import Path

sys.dont_write_bytecode = True
FOLDER = tempfile.TemporaryDirectory()
os.environ["XDG_CONFIG_HOME"] = FOLDER.name
os.environ["PYTHONPATH"] = sys.argv[1]
os.environ["PYTHONDONTWRITEBYTECODE"] = "1"
os.environ["DASK_DISTRIBUTED__SCHEDULER__ALLOWED_FAILURES"] = "10"
sys.path.insert(0, sys.argv[1])

import pandas
from dask import dataframe
from distributed import Client, LocalCluster, wait

import linewright

ROWS = 300_000


def recipe() -> str:
    text = (Path(sys.argv[2]) / "scale.md").read_text(encoding="utf-8")
    return re.search(r"<!-- run by tests/python/dask_test.py -->\n```python\n(.*?)```", text,
                     re.DOTALL).group(1)


def main() -> None:
    skus = [f"{number * 7919 % 10**12:012}" for number in range(ROWS)]
    skus[1000] = "no number"
    skus[200_000] = None
    articles = pandas.DataFrame({"sku": skus})
    with LocalCluster(n_workers=2, threads_per_worker=1, host="127.0.0.1", dashboard_address=None,
                      local_directory=FOLDER.name) as cluster, Client(cluster) as client:
        pids = [worker.pid for worker in cluster.workers.values()]
        assert len(set(pids)) == 2 and os.getpid() not in pids
        names = {"linewright": linewright, "dataframe": dataframe, "articles": articles}
        exec(recipe(), names)
        encoded = names["encoded"].persist()
        futures = client.futures_of(encoded)
        while not any(future.done() for future in futures):
            time.sleep(0.01)
        assert not all(future.done() for future in futures), "a worker is killed on the way"
        os.kill(pids[0], signal.SIGKILL)
        wait(futures)
        result = client.compute(encoded).result()
        pids_after = [worker.pid for worker in cluster.workers.values()]
        assert pids[0] not in pids_after, (pids, pids_after)
    made = linewright.encode_many("ean13", articles["sku"])
    wanted = articles.assign(barcode=made.texts, status=made.statuses, reason=made.reasons)
    pandas.testing.assert_frame_equal(result, wanted)
    counts = result["reason"].value_counts().to_dict()
    assert counts == {0: ROWS - 2, 3: 1, 255: 1}, counts
    print(f"{ROWS} rows, reasons {counts}")


if __name__ == "__main__":
    main()
